// SPDX-License-Identifier: MIT
#include "library/TimeLeft.h"

#include "platform/Words.h"

#include <algorithm>

namespace songsweep {

std::string timeLeftText(int seconds) {
    constexpr int secondsOfMinute = 60;
    constexpr int step = 10;
    const int rounded = std::max(step, (seconds + step - 1) / step * step);
    if (seconds < secondsOfMinute)
        return countedWords("TimeLeft", "about %1 seconds left", "about 1 second left", rounded);
    const int minutes = (seconds + secondsOfMinute - 1) / secondsOfMinute;
    return countedWords("TimeLeft", "about %1 minutes left", "about 1 minute left", minutes);
}

} // namespace songsweep
