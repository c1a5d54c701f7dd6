// SPDX-License-Identifier: MIT
#pragma once

#include "library/ValueFormats.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

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

} // namespace songsweep
