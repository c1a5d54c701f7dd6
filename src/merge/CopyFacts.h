// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/EntryValues.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace songsweep {

/// The values that fill in what a kept copy lacks, by their places in `CopyFacts::has`.
enum class FillIn : std::uint8_t { genre, year, comment, composer, trackNumber, discNumber };
inline constexpr std::size_t fillInCount = 6;

/// What the library says of the life of one copy. A value.
struct CopyFacts {
    std::int64_t plays = 0;
    std::int64_t skips = 0;
    std::int64_t rating = 0;                     ///< of 100, 0 for none; one that iTunes computed is none
    std::int64_t albumRating = 0;                ///< the same
    std::optional<std::int64_t> lastPlayed = {}; ///< in seconds since 1970
    std::optional<std::int64_t> lastSkipped = {};
    std::optional<std::int64_t> added = {};
    bool isLoved = false;
    bool isEnabled = true;
    std::array<bool, fillInCount> has = {};   ///< by FillIn
    std::array<bool, fillInCount> gives = {}; ///< the same, where another copy can be given it

    static CopyFacts of(const EntryValues& values);
};

} // namespace songsweep
