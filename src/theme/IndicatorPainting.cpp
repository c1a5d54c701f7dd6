// SPDX-License-Identifier: MIT
#include "theme/Painting.h"

#include <QPainter>
#include <QPainterPath>

namespace songsweep::painting {

namespace {

constexpr qreal designSize = 16; // the grid that the tick and the dash are drawn on

QPainterPath tickPath(Qt::CheckState state) {
    QPainterPath path;
    if (state == Qt::PartiallyChecked) {
        path.moveTo(4.6, 8);
        path.lineTo(11.4, 8);
    } else {
        path.moveTo(4.4, 8.2);
        path.lineTo(7, 10.8);
        path.lineTo(11.7, 5.5);
    }
    return path;
}

void drawTick(QPainter& painter, const QRectF& rect, Qt::CheckState state, const QColor& color) {
    constexpr qreal stroke = 1.8;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / designSize, rect.height() / designSize);
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(tickPath(state));
    painter.restore();
}

CheckBoxColors colorsOf(const ThemeColors& colors, bool enabled) {
    if (!enabled)
        return {colors.window, colors.disabledText, colors.disabledText, colors.disabledText, colors.window};
    return {colors.content, colors.indicatorOutline, colors.accent, colors.accentBorder, colors.onAccent};
}

Qt::CheckState stateOf(const QStyleOption& option) {
    if ((option.state & QStyle::State_NoChange) != 0) return Qt::PartiallyChecked;
    return (option.state & QStyle::State_On) != 0 ? Qt::Checked : Qt::Unchecked;
}

} // namespace

void checkBox(QPainter& painter, const QRectF& rect, qreal scale, Qt::CheckState state,
              const CheckBoxColors& colors) {
    constexpr qreal radius = 4;
    const Canvas canvas{painter, themeColors(ThemeKind::light), scale};
    const bool checked = state != Qt::Unchecked;
    roundedBox(canvas, rect, radius * scale, checked ? colors.checkedFill : colors.fill,
               checked ? colors.checkedOutline : colors.outline);
    if (checked) drawTick(painter, rect, state, colors.tick);
}

void checkBox(const Canvas& canvas, const QStyleOption& option) {
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    checkBox(canvas.painter, option.rect, canvas.scale, stateOf(option), colorsOf(canvas.colors, enabled));
}

void radioButton(const Canvas& canvas, const QStyleOption& option) {
    constexpr qreal dotRadius = 3;
    const CheckBoxColors colors = colorsOf(canvas.colors, (option.state & QStyle::State_Enabled) != 0);
    const bool checked = (option.state & QStyle::State_On) != 0;
    const QRectF rect = option.rect;
    roundedBox(canvas, rect, rect.width() / 2, checked ? colors.checkedFill : colors.fill,
               checked ? colors.checkedOutline : colors.outline);
    if (!checked) return;
    canvas.painter.save();
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.setPen(Qt::NoPen);
    canvas.painter.setBrush(colors.tick);
    canvas.painter.drawEllipse(rect.center(), dotRadius * canvas.scale, dotRadius * canvas.scale);
    canvas.painter.restore();
}

void focusRing(const Canvas& canvas, const QRectF& control, qreal radius) {
    constexpr qreal width = 2;
    constexpr qreal distance = 3; // from the control's edge to the middle of the ring
    const qreal out = distance * canvas.scale;
    canvas.painter.save();
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.setPen(QPen(canvas.colors.focusRing, width * canvas.scale));
    canvas.painter.setBrush(Qt::NoBrush);
    canvas.painter.drawRoundedRect(control.adjusted(-out, -out, out, out), radius + out, radius + out);
    canvas.painter.restore();
}

void chevron(const Canvas& canvas, const QPointF& center, const QColor& color) {
    constexpr qreal halfWidth = 3;
    constexpr qreal halfHeight = 1.5;
    constexpr qreal stroke = 1.6;
    const qreal x = halfWidth * canvas.scale;
    const qreal y = halfHeight * canvas.scale;
    canvas.painter.save();
    canvas.painter.setRenderHint(QPainter::Antialiasing);
    canvas.painter.setPen(QPen(color, stroke * canvas.scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    canvas.painter.drawPolyline(
        QPolygonF({center + QPointF(-x, -y), center + QPointF(0, y), center + QPointF(x, -y)}));
    canvas.painter.restore();
}

} // namespace songsweep::painting
