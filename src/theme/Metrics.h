// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

class QFont;
class QWidget;

namespace songsweep {

/// How much larger than the 13 px that all lengths are given for a font is; never below 1.
qreal fontScale(const QFont& font);

/// The scale of a widget's window, so that its small and its large labels agree about lengths; of the
/// application's font where there is no widget.
qreal fontScale(const QWidget* widget);

/// A length of the 13 px design grown with the font, in whole device-independent pixels.
int scaledLength(int length, const QFont& font);
int scaledLength(int length, const QWidget* widget);

} // namespace songsweep
