// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace songsweep {

/// Ratings as tags have them, made 0 to 100, where 20 is a star and 0 is none. Free functions, thread-safe.

/// A popularimeter's: 1, 64, 128, 196 and 255 are one to five stars, and what lies between them the nearer.
std::int32_t ratingOfPopularity(std::int32_t popularity);

/// A part of one, as a text: "0.8", "1". 0 of anything else.
std::int32_t ratingOfPart(std::string_view text);

/// A text's of an unknown scale: "0.8" is a part of one, "4" one of five stars, "8" one of ten half stars,
/// and "80" is one of a hundred. 0 of anything else.
std::int32_t ratingOfText(std::string_view text);

} // namespace songsweep
