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

} // namespace songsweep
