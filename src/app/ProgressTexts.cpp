// SPDX-License-Identifier: MIT
#include "app/ProgressTexts.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr int secondsOfMinute = 60;

/// In steps that do not flicker: ten seconds, then minutes.
QString timeText(int seconds) {
    constexpr int step = 10;
    if (seconds < secondsOfMinute)
        return QStringLiteral("about %1 seconds left")
            .arg(std::max(step, (seconds + step - 1) / step * step));
    const int minutes = (seconds + secondsOfMinute - 1) / secondsOfMinute;
    return minutes == 1 ? QStringLiteral("about 1 minute left")
                        : QStringLiteral("about %L1 minutes left").arg(minutes);
}

} // namespace

QString progressText(const ProgressCounts& counts) {
    if (counts.total <= 0) return {};
    QString text = QStringLiteral("%L1 of %L2").arg(std::min(counts.done, counts.total)).arg(counts.total);
    if (!counts.secondsLeft) return text;
    return text + QStringLiteral(" – ") + timeText(*counts.secondsLeft);
}

} // namespace songsweep
