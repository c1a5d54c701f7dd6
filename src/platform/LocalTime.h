// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace songsweep {

/// An instant (seconds since 1970-01-01 00:00:00 UTC) as a LongDateTime: seconds of local time since
/// 1904-01-01 00:00:00, summer time included.
std::int64_t longDateTime(std::int64_t utc);

/// The instant of a LongDateTime. Of the hour that the end of summer time repeats, the system's choice.
std::int64_t utcOfLongDateTime(std::int64_t longDateTime);

} // namespace songsweep
