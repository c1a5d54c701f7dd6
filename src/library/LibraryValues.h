// SPDX-License-Identifier: MIT
#pragma once

#include "library/ValueFormats.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace songsweep {

/// What the values of a library file mean, in one place for all who make something of them: the reader of the
/// file, the embedded iTunes, and the reader that asks iTunes. Texts are trimmed. What a track has where the
/// file gives no value is what a TrackRecord begins with. Free functions, thread-safe, and here for the sake
/// of the reader, which calls them for every track.

/// "3:07" of a total time of 187429 milliseconds.
inline std::string durationOf(std::string_view totalTime) { return SecToTime(integerValue(totalTime)); }

/// The stars, 0 to 5, of a rating of 0 to 100.
constexpr std::int32_t starsOf(std::int32_t rating) { return rating / 20; }

/// Not below 0.
inline std::int32_t artworkCountOf(std::string_view artworkCount) {
    return std::max(integerValue(artworkCount), 0);
}

/// 0, which is no track's number, for one beyond all albums.
inline std::int16_t trackNumberOf(std::string_view trackNumber) {
    const std::int32_t number = integerValue(trackNumber);
    return std::in_range<std::int16_t>(number) ? static_cast<std::int16_t>(number) : std::int16_t{0};
}

} // namespace songsweep
