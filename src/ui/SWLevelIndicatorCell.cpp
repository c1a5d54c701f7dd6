// SPDX-License-Identifier: MIT
#include "ui/SWLevelIndicatorCell.h"

#include "ui/TrackTableModel.h"

#include <QPainter>
#include <QPainterPath>

namespace songsweep {

namespace {

constexpr int places = 5;
constexpr qreal starGrid = 13; ///< the star is drawn on a grid of this side
constexpr qreal placeWidth = 14;
constexpr qreal dotRadius = 1.4;

const QPainterPath& starPath() {
    static const QPainterPath star = [] {
        QPainterPath path;
        path.addPolygon(QPolygonF({{6.5, 0.9},
                                   {8.2, 4.5},
                                   {12.1, 5},
                                   {9.3, 7.8},
                                   {10, 11.7},
                                   {6.5, 9.8},
                                   {3, 11.7},
                                   {3.7, 7.8},
                                   {0.9, 5},
                                   {4.8, 4.5}}));
        path.closeSubpath();
        return path;
    }();
    return star;
}

} // namespace

void SWLevelIndicatorCell::drawInterior(QPainter& painter, const QStyleOptionViewItem& option,
                                        const RowColors& colors, const QModelIndex& index) const {
    const int stars = index.data(TrackTableModel::StarsRole).toInt();
    if (stars <= 0) return;
    painter.setClipRect(option.rect, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal unit = metrics().factor;
    painter.translate(option.rect.left() + metrics().padding,
                      option.rect.top() + qRound((option.rect.height() - starGrid * unit) / 2));
    painter.scale(unit, unit);
    for (int place = 0; place < places; ++place) {
        painter.setBrush(place < stars ? colors.stars : colors.starDots);
        if (place < stars)
            painter.drawPath(starPath());
        else
            painter.drawEllipse(QPointF(starGrid / 2, starGrid / 2), dotRadius, dotRadius);
        painter.translate(placeWidth, 0);
    }
}

} // namespace songsweep
