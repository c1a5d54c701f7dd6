// SPDX-License-Identifier: MIT
#include "theme/Painting.h"

namespace songsweep::painting {

namespace {

constexpr qreal controlRadius = 6;

} // namespace

void field(const Canvas& canvas, const QRect& rect, bool enabled) {
    roundedBox(canvas, rect, controlRadius * canvas.scale,
               enabled ? canvas.colors.content : canvas.colors.window,
               enabled ? canvas.colors.buttonBorder : canvas.colors.line);
}

void comboBox(const Canvas& canvas, const QStyleOptionComboBox& combo, const QRect& arrow) {
    const bool enabled = (combo.state & QStyle::State_Enabled) != 0;
    if (combo.editable || !enabled) {
        field(canvas, combo.rect, enabled);
    } else {
        const bool hovered = (combo.state & QStyle::State_MouseOver) != 0;
        roundedBox(canvas, combo.rect, controlRadius * canvas.scale,
                   hovered ? canvas.colors.hover : canvas.colors.buttonFace, canvas.colors.buttonBorder);
    }
    chevron(canvas, QRectF(arrow).center(), enabled ? canvas.colors.iconStroke : canvas.colors.disabledText);
}

} // namespace songsweep::painting
