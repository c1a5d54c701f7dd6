// SPDX-License-Identifier: MIT
#include "ui/TableMetrics.h"

#include "theme/Metrics.h"

#include <QFontMetrics>

#include <algorithm>

namespace songsweep {

TableMetrics::TableMetrics(const QFont& font)
    : factor(fontScale(font))
    , rowHeight(std::max(24, QFontMetrics(font).height() + 6))
    , padding(scaled(8))
    , box(scaled(16))
    , image(scaled(16))
    , star(scaled(14)) {}

int TableMetrics::scaled(qreal length) const { return qRound(length * factor); }

} // namespace songsweep
