// SPDX-License-Identifier: MIT
#include "ui/TrackHeaderView.h"

#include "theme/Icons.h"
#include "theme/Metrics.h"
#include "theme/ThemeColors.h"
#include "ui/ColumnLook.h"

#include <QPainter>

#include <algorithm>

namespace songsweep {

namespace {

constexpr int headerHeight = 26;
constexpr int titlePadding = 8;
constexpr int smallestSection = 28;
constexpr int binSide = 14;
constexpr int separatorAir = 6;
constexpr int hairline = 1;
constexpr QSize triangle(8, 5);
constexpr int triangleAir = 5; ///< between triangle and title
constexpr int closeAir = 1;    ///< the least there, beside a title in the middle of its section
constexpr int edgeAir = 1;     ///< between a narrow section's edge and what stands in it

} // namespace

TrackHeaderView::TrackHeaderView(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setSectionsMovable(true);
    setFirstSectionMovable(true);
    setHighlightSections(false);
    setSortIndicatorShown(false);
}

void TrackHeaderView::setSortIndicator(Column column, bool ascending) {
    m_sortedColumn = column;
    m_ascending = ascending;
    viewport()->update();
}

void TrackHeaderView::clearSortIndicator() {
    m_sortedColumn.reset();
    viewport()->update();
}

void TrackHeaderView::applyFont(const QFont& ofTable) {
    constexpr qreal small = 0.92;
    QFont font = ofTable;
    if (ofTable.pointSizeF() > 0)
        font.setPointSizeF(ofTable.pointSizeF() * small);
    else
        font.setPixelSize(qRound(ofTable.pixelSize() * small));
    setFont(font);
    setMinimumSectionSize(scaledLength(smallestSection, this));
}

QSize TrackHeaderView::sizeHint() const {
    return {QHeaderView::sizeHint().width(),
            std::max(scaledLength(headerHeight, this), fontMetrics().height() + 8)};
}

void TrackHeaderView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), themeColors(palette()).header);
    drawBaseline(painter, viewport()->rect());
    painter.end();
    QHeaderView::paintEvent(event);
}

void TrackHeaderView::paintSection(QPainter* painter, const QRect& rect, int section) const {
    if (!rect.isValid()) return;
    const ThemeColors& colors = themeColors(palette());
    const Column column = columnOf(section);
    const bool sorted = column == m_sortedColumn;
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->fillRect(rect, sorted ? colors.sortedHeader : colors.header);
    drawSeparator(*painter, rect);
    drawBaseline(*painter, rect);
    drawTitle(*painter, rect.adjusted(0, 0, 0, -hairline), column, sorted);
    painter->restore();
}

void TrackHeaderView::drawTitle(QPainter& painter, const QRect& rect, Column column, bool sorted) const {
    const ThemeColors& colors = themeColors(palette());
    const ColumnLook& look = columnLook(column);
    painter.setPen(sorted ? colors.sortedHeaderText : colors.secondaryText);
    if (column == Column::checkbox) drawBin(painter, rect);
    const QString title = fontMetrics().elidedText(look.title, Qt::ElideRight, titleRoom(column));
    const QRect place = titlePlace(rect, fontMetrics().horizontalAdvance(title), look.alignment);
    const int baseline = place.top() + (place.height() - fontMetrics().height()) / 2 + fontMetrics().ascent();
    painter.drawText(place.left(), baseline, title);
    if (sorted) drawTriangle(painter, rect, title.isEmpty() ? rect : place, look.alignment);
}

void TrackHeaderView::drawBin(QPainter& painter, const QRect& rect) const {
    const int side = scaledLength(binSide, this);
    const QPoint corner(rect.left() + (rect.width() - side) / 2, rect.top() + (rect.height() - side + 1) / 2);
    paintIcon(painter, Icon::bin, QRect(corner, QSize(side, side)), painter.pen().color());
}

int TrackHeaderView::titleRoom(Column column) const {
    const int width = sectionSize(sectionOf(column));
    const int edge = scaledLength(edgeAir, this);
    if (columnLook(column).alignment.testFlag(Qt::AlignHCenter))
        return width - 2 * (edge + scaledLength(triangle.width() + closeAir, this));
    return width - scaledLength(titlePadding + triangle.width() + triangleAir, this) - edge;
}

QRect TrackHeaderView::titlePlace(const QRect& rect, int width, Qt::Alignment alignment) const {
    const int padding = scaledLength(titlePadding, this);
    int left = rect.left() + padding;
    if (alignment.testFlag(Qt::AlignRight)) left = rect.right() + 1 - padding - width;
    if (alignment.testFlag(Qt::AlignHCenter)) left = rect.left() + (rect.width() - width) / 2;
    return {left, rect.top(), width, rect.height()};
}

/// Left of a title that ends over its values, else right of it; in a narrow column close to the title, and
/// in one without a title at its end.
void TrackHeaderView::drawTriangle(QPainter& painter, const QRect& section, const QRect& title,
                                   Qt::Alignment alignment) const {
    const qreal unit = fontScale(this);
    const QSizeF size = QSizeF(triangle) * unit;
    const qreal air = triangleAir * unit;
    const qreal lastLeft = section.right() - edgeAir * unit - size.width();
    const bool leftOfTitle = alignment.testFlag(Qt::AlignRight);
    const qreal left =
        leftOfTitle ? title.left() - air - size.width() : std::min(title.right() + 1 + air, lastLeft);
    const qreal top = title.top() + qRound((title.height() - size.height()) / 2);
    const qreal base = m_ascending ? top + size.height() : top;
    const qreal tip = m_ascending ? top : top + size.height();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(themeColors(palette()).focusRing);
    painter.drawPolygon(
        QPolygonF({{left, base}, {left + size.width(), base}, {left + size.width() / 2, tip}}));
}

void TrackHeaderView::drawSeparator(QPainter& painter, const QRect& rect) const {
    const int air = scaledLength(separatorAir, this);
    painter.fillRect(QRect(rect.right(), rect.top() + air, hairline, rect.height() - hairline - 2 * air),
                     themeColors(palette()).line);
}

void TrackHeaderView::drawBaseline(QPainter& painter, const QRect& rect) const {
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), hairline), themeColors(palette()).line);
}

} // namespace songsweep
