// SPDX-License-Identifier: MIT
#include "app/ProgressTexts.h"

#include "library/TimeLeft.h"

#include <QCoreApplication>

#include <algorithm>

namespace songsweep {

QString progressText(const ProgressCounts& counts) {
    if (counts.total <= 0) return {};
    QString text = QCoreApplication::translate("Progress", "%L1 of %L2")
                       .arg(std::min(counts.done, counts.total))
                       .arg(counts.total);
    if (!counts.secondsLeft) return text;
    return text + QStringLiteral(" – ") + QString::fromStdString(timeLeftText(*counts.secondsLeft));
}

} // namespace songsweep
