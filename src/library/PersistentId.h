// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace songsweep {

/// A track's persistent ID in eight bytes, so that a million of them are cheap to keep and compare.
///
/// iTunes writes 16 hexadecimal digits, which are the value itself. Any other text keeps a hash of it: equal
/// keys then mean that the texts must be compared. Upper and lower case are the same, as in AppleScript.
struct PersistentId {
    enum class Kind : std::uint8_t { none, exact, hashed };

    std::uint64_t value = 0;
    Kind kind = Kind::none;

    /// The key of a text; `none` of an empty one.
    static PersistentId of(std::string_view text);

    bool operator==(const PersistentId&) const = default;
};

} // namespace songsweep
