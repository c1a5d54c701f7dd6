// SPDX-License-Identifier: MIT
#include "platform/LocalTime.h"

#include "platform/Epochs.h"

#include <ctime>

namespace songsweep {

std::int64_t longDateTime(std::int64_t utc) {
    const auto instant = static_cast<std::time_t>(utc);
    std::tm local{};
    ::localtime_r(&instant, &local);
    return utc + local.tm_gmtoff - secondsSince1970(longDateTimeEpoch);
}

std::int64_t utcOfLongDateTime(std::int64_t longDateTime) {
    // The parts of the day as they are read off a clock, for the system to find where that clock stands.
    const auto clock = static_cast<std::time_t>(longDateTime + secondsSince1970(longDateTimeEpoch));
    std::tm local{};
    ::gmtime_r(&clock, &local);
    local.tm_isdst = -1;
    return ::mktime(&local);
}

} // namespace songsweep
