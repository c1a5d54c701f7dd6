// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackStorage.h"

#include <cstdint>

namespace songsweep {

class Descriptor;

/// The text that stands for a track without a file where iTunes answers.
inline constexpr std::string_view missingLocation = "msng";

/// Whether a track item of a batch is of a track whose file is missing.
bool isDeadTrackItem(const Descriptor& item);

/// Makes the record of one track item: twelve values in the order in which the batch script lists them.
TrackRecord& makeRecord(TrackStorage& storage, const Descriptor& item);

/// Seconds since 1970 UTC, to the nearest minute, of seconds of local time since 1904-01-01 00:00:00.
std::int64_t minuteOfLongDateTime(std::int64_t longDateTime);

} // namespace songsweep
