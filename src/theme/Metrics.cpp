// SPDX-License-Identifier: MIT
#include "theme/Metrics.h"

#include <QApplication>
#include <QFontInfo>
#include <QWidget>

#include <algorithm>

namespace songsweep {

qreal fontScale(const QFont& font) {
    constexpr qreal designPixelSize = 13;
    return std::max<qreal>(1, QFontInfo(font).pixelSize() / designPixelSize);
}

qreal fontScale(const QWidget* widget) {
    return fontScale(widget != nullptr ? widget->window()->font() : QApplication::font());
}

int scaledLength(int length, const QFont& font) { return qRound(length * fontScale(font)); }

int scaledLength(int length, const QWidget* widget) { return qRound(length * fontScale(widget)); }

} // namespace songsweep
