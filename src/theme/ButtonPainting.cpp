// SPDX-License-Identifier: MIT
#include "theme/Painting.h"

#include <QPainter>

namespace songsweep::painting {

namespace {

constexpr qreal controlRadius = 6;

bool isFilled(const QStyleOptionButton& button) {
    return (button.features & QStyleOptionButton::DefaultButton) != 0 &&
           (button.state & QStyle::State_Enabled) != 0;
}

QColor fillOf(const ThemeColors& colors, const QStyle::State state, const QColor& resting) {
    if ((state & QStyle::State_Enabled) == 0) return resting;
    if ((state & (QStyle::State_Sunken | QStyle::State_On)) != 0) return colors.pressed;
    return (state & QStyle::State_MouseOver) != 0 ? colors.hover : resting;
}

QColor accentFillOf(const ThemeColors& colors, const QStyle::State state) {
    constexpr int slightly = 108;
    if ((state & QStyle::State_Sunken) != 0) return colors.accent.darker(slightly);
    return (state & QStyle::State_MouseOver) != 0 ? colors.accent.lighter(slightly) : colors.accent;
}

/// A chevron that points where the arrow of the button does: down, or to where its text reads on.
void arrow(const Canvas& canvas, const QRect& place, const QStyleOptionToolButton& button) {
    canvas.painter.save();
    canvas.painter.translate(QRectF(place).center());
    if (button.arrowType == Qt::RightArrow)
        canvas.painter.rotate(button.direction == Qt::RightToLeft ? 90 : -90);
    chevron(canvas, QPointF(), button.palette.color(QPalette::WindowText));
    canvas.painter.restore();
}

} // namespace

void roundedBox(const Canvas& canvas, const QRectF& rect, qreal radius, const QColor& fill,
                const QColor& border) {
    constexpr qreal half = 0.5;
    const bool outlined = border.isValid();
    canvas.painter.save();
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.setPen(outlined ? QPen(border, 1) : QPen(Qt::NoPen));
    canvas.painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    const QRectF line = outlined ? rect.adjusted(half, half, -half, -half) : rect;
    const qreal corner = outlined ? radius - half : radius;
    canvas.painter.drawRoundedRect(line, corner, corner);
    canvas.painter.restore();
}

void pushButton(const Canvas& canvas, const QStyleOptionButton& button) {
    const qreal radius = controlRadius * canvas.scale;
    if (isFilled(button)) {
        roundedBox(canvas, button.rect, radius, accentFillOf(canvas.colors, button.state),
                   canvas.colors.accentBorder);
        return;
    }
    const bool enabled = (button.state & QStyle::State_Enabled) != 0;
    const QColor resting = enabled ? canvas.colors.buttonFace : canvas.colors.window;
    roundedBox(canvas, button.rect, radius, fillOf(canvas.colors, button.state, resting),
               enabled ? canvas.colors.buttonBorder : canvas.colors.line);
}

QColor pushButtonText(const ThemeColors& colors, const QStyleOptionButton& button, bool destructive) {
    if ((button.state & QStyle::State_Enabled) == 0) return colors.disabledText;
    if (isFilled(button)) return colors.onAccent;
    return destructive ? colors.destructive : colors.text;
}

void flatButton(const Canvas& canvas, const QStyleOption& option) {
    const QColor fill = fillOf(canvas.colors, option.state, QColor());
    if (fill.isValid()) roundedBox(canvas, option.rect, controlRadius * canvas.scale, fill, QColor());
}

void toolButtonLabel(const Canvas& canvas, const QStyleOptionToolButton& button, const QStyle& style,
                     const QWidget* widget) {
    constexpr qreal leftPadding = 10;
    constexpr qreal gap = 8;
    const bool enabled = (button.state & QStyle::State_Enabled) != 0;
    const QIcon::Mode mode = enabled ? QIcon::Normal : QIcon::Disabled;
    if (button.toolButtonStyle == Qt::ToolButtonIconOnly || button.text.isEmpty()) {
        QRect icon(QPoint(), button.iconSize);
        icon.moveCenter(button.rect.center());
        button.icon.paint(&canvas.painter, icon, Qt::AlignCenter, mode);
        return;
    }
    const bool underlined = style.styleHint(QStyle::SH_UnderlineShortcut, &button, widget) != 0;
    const int mnemonic = underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    if (button.toolButtonStyle == Qt::ToolButtonTextOnly) {
        style.drawItemText(&canvas.painter, button.rect, Qt::AlignCenter | mnemonic, button.palette, enabled,
                           button.text, QPalette::WindowText);
        return;
    }
    QRect icon(QPoint(), button.iconSize);
    icon.moveTopLeft(QPoint(button.rect.left() + qRound(leftPadding * canvas.scale),
                            button.rect.top() + (button.rect.height() - icon.height()) / 2));
    const QRect text =
        button.rect.adjusted(icon.right() + 1 - button.rect.left() + qRound(gap * canvas.scale), 0, 0, 0);
    const auto visual = [&](const QRect& rect) {
        return QStyle::visualRect(button.direction, button.rect, rect);
    };
    if (button.features.testFlag(QStyleOptionToolButton::Arrow))
        arrow(canvas, visual(icon), button);
    else
        button.icon.paint(&canvas.painter, visual(icon), Qt::AlignCenter, mode);
    const int flags =
        static_cast<int>(Qt::AlignVCenter | QStyle::visualAlignment(button.direction, Qt::AlignLeft)) |
        mnemonic;
    style.drawItemText(&canvas.painter, visual(text), flags, button.palette, enabled, button.text,
                       QPalette::WindowText);
}

} // namespace songsweep::painting
