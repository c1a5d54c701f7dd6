// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace songsweep {

/// What the beginning of a recording sounds like: 32 bits every eighth of a second, each of which says how
/// two neighbouring bands changed. Format, bit rate and loudness change few of the bits.
using Fingerprint = std::vector<std::uint32_t>;

inline constexpr double fingerprintItemsPerSecond = 11025.0 / 1365.0;

} // namespace songsweep
