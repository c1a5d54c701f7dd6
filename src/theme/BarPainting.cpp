// SPDX-License-Identifier: MIT
#include "theme/Painting.h"

#include <QPainter>

#include <algorithm>

namespace songsweep::painting {

namespace {

qreal fractionOf(const QStyleOptionProgressBar& bar) {
    const int range = bar.maximum - bar.minimum;
    if (range <= 0) return 0;
    return std::clamp(static_cast<qreal>(bar.progress - bar.minimum) / range, 0.0, 1.0);
}

QRectF handleOf(const QStyleOptionSlider& bar, const QRect& slider, qreal scale) {
    constexpr qreal thickness = 7;
    constexpr qreal endMargin = 3;
    const qreal end = endMargin * scale;
    const QRectF rect = slider;
    if (bar.orientation == Qt::Horizontal) {
        const qreal top = rect.top() + qRound((rect.height() - thickness * scale) / 2);
        return {rect.left() + end, top, rect.width() - 2 * end, thickness * scale};
    }
    const qreal left = rect.left() + qRound((rect.width() - thickness * scale) / 2);
    return {left, rect.top() + end, thickness * scale, rect.height() - 2 * end};
}

} // namespace

void progressBar(const Canvas& canvas, const QStyleOptionProgressBar& bar) {
    constexpr qreal thickness = 6;
    constexpr qreal radius = 3;
    QRectF track = bar.rect;
    track.setHeight(thickness * canvas.scale);
    track.moveTop(bar.rect.top() + qRound((bar.rect.height() - track.height()) / 2));
    roundedBox(canvas, track, radius * canvas.scale, canvas.colors.barTrack, QColor());
    QRectF done = track;
    done.setWidth(track.width() * fractionOf(bar));
    if (bar.direction == Qt::RightToLeft) done.moveRight(track.right());
    if (done.isEmpty()) return;
    canvas.painter.save();
    canvas.painter.setClipRect(done);
    done.setWidth(std::max(done.width(), track.height()));
    roundedBox(canvas, done, radius * canvas.scale, canvas.colors.accent, QColor());
    canvas.painter.restore();
}

void scrollBar(const Canvas& canvas, const QStyleOptionSlider& bar, const QRect& slider) {
    canvas.painter.fillRect(bar.rect, canvas.colors.window);
    if (bar.orientation == Qt::Horizontal) {
        const QRect lineAbove(bar.rect.left(), bar.rect.top(), bar.rect.width(), 1);
        canvas.painter.fillRect(lineAbove, canvas.colors.line);
    }
    if (bar.minimum == bar.maximum) return;
    const QRectF handle = handleOf(bar, slider, canvas.scale);
    roundedBox(canvas, handle, std::min(handle.width(), handle.height()) / 2, canvas.colors.scrollHandle,
               QColor());
}

} // namespace songsweep::painting
