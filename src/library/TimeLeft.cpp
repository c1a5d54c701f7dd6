// SPDX-License-Identifier: MIT
#include "library/TimeLeft.h"

#include <algorithm>

namespace songsweep {

std::string timeLeftText(int seconds) {
    constexpr int secondsOfMinute = 60;
    constexpr int step = 10;
    if (seconds < secondsOfMinute)
        return "about " + std::to_string(std::max(step, (seconds + step - 1) / step * step)) +
               " seconds left";
    const int minutes = (seconds + secondsOfMinute - 1) / secondsOfMinute;
    return minutes == 1 ? "about 1 minute left" : "about " + std::to_string(minutes) + " minutes left";
}

} // namespace songsweep
