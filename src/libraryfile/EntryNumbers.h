// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace songsweep {

/// The bytes of a track's entry with another track ID: in its key and in its value "Track ID". Nothing where
/// the numbers are not found where iTunes writes them.
std::optional<std::string> entryWithTrackId(std::string_view entry, std::int64_t trackId);

/// The same for a playlist item, which has the value alone.
std::optional<std::string> itemWithTrackId(std::string_view item, std::int64_t trackId);

} // namespace songsweep
