// SPDX-License-Identifier: MIT
#pragma once

#include "theme/ThemeColors.h"

#include <QStyle>
#include <QStyleOption>

class QPainter;

/// How the controls are drawn: one function per kind, told everything, keeping nothing. Lengths are grown
/// with the font by `scale`; hairlines stay one pixel.
namespace songsweep::painting {

/// What every drawing needs to know.
struct Canvas {
    QPainter& painter;
    const ThemeColors& colors;
    qreal scale;
};

/// A filled rectangle with round corners and a border one pixel wide inside `rect`; either colour may be
/// invalid for none.
void roundedBox(const Canvas& canvas, const QRectF& rect, qreal radius, const QColor& fill,
                const QColor& border);

void pushButton(const Canvas& canvas, const QStyleOptionButton& button);
/// The colour of a push button's text; `destructive` is what its role says.
QColor pushButtonText(const ThemeColors& colors, const QStyleOptionButton& button, bool destructive);
/// The fill behind a flat button under the mouse or pressed; nothing otherwise.
void flatButton(const Canvas& canvas, const QStyleOption& option);
void toolButtonLabel(const Canvas& canvas, const QStyleOptionToolButton& button, const QStyle& style,
                     const QWidget* widget);

void field(const Canvas& canvas, const QRect& rect, bool enabled);
void comboBox(const Canvas& canvas, const QStyleOptionComboBox& combo, const QRect& arrow);
void chevron(const Canvas& canvas, const QPointF& center, const QColor& color);

/// A check box in the colours given; also drawn by the table on its rows.
struct CheckBoxColors {
    QColor fill;
    QColor outline;
    QColor checkedFill;
    QColor checkedOutline;
    QColor tick;
};
void checkBox(QPainter& painter, const QRectF& rect, qreal scale, Qt::CheckState state,
              const CheckBoxColors& colors);
void checkBox(const Canvas& canvas, const QStyleOption& option);
void radioButton(const Canvas& canvas, const QStyleOption& option);
/// The ring of the focus around a control of the given rectangle and corner radius.
void focusRing(const Canvas& canvas, const QRectF& control, qreal radius);

void progressBar(const Canvas& canvas, const QStyleOptionProgressBar& bar);
void scrollBar(const Canvas& canvas, const QStyleOptionSlider& bar, const QRect& slider);

void dividingLine(const Canvas& canvas, const QRect& rect, Qt::Orientation orientation);
void toolBar(const Canvas& canvas, const QRect& rect);
void toolBarSeparator(const Canvas& canvas, const QRect& rect);
void menuBarItem(const Canvas& canvas, const QStyleOptionMenuItem& item, const QStyle& style);
void popupPanel(const Canvas& canvas, const QRect& rect);
void headerSection(const Canvas& canvas, const QStyleOptionHeader& header);

} // namespace songsweep::painting
