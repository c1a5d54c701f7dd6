// SPDX-License-Identifier: MIT
#include "ui/TextCell.h"

#include "ui/ColumnLook.h"
#include "ui/TrackTableModel.h"

#include <QCoreApplication>
#include <QPainter>

namespace songsweep {

namespace {

int leftEdge(const QRect& rect, int width, Qt::Alignment alignment) {
    if (alignment.testFlag(Qt::AlignRight)) return rect.right() + 1 - width;
    if (alignment.testFlag(Qt::AlignHCenter)) return rect.left() + (rect.width() - width) / 2;
    return rect.left();
}

/// Line breaks would be drawn as boxes.
QString onOneLine(QString text) {
    for (QChar& character : text)
        if (character == QLatin1Char('\n') || character == QLatin1Char('\r') ||
            character == QLatin1Char('\t'))
            character = QLatin1Char(' ');
    return text;
}

bool isSecondary(Column column, const QString& text, const QModelIndex& index) {
    if (index.data(TrackTableModel::MissingRole).toBool()) return true;
    return column == Column::hasartwork && text == QCoreApplication::translate("Columns", "No");
}

} // namespace

QRect TextCell::textRect(const QRect& frame) const {
    return frame.adjusted(metrics().padding, 0, -metrics().padding, 0);
}

void TextCell::drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                            const QModelIndex& index) const {
    const Column column = columnOf(index.column());
    const ColumnLook& look = columnLook(column);
    const QRect rect = textRect(option.rect);
    const QFontMetrics& font = option.fontMetrics;
    const QString whole = onOneLine(index.data(TrackTableModel::DrawnRole).toString());
    const QString text = font.elidedText(whole, look.elision, rect.width());

    painter.setFont(option.font);
    painter.setPen(isSecondary(column, whole, index) ? colors.secondaryText : colors.text);
    const int baseline = rect.top() + (rect.height() - font.height()) / 2 + font.ascent();
    painter.setClipRect(option.rect, Qt::IntersectClip);
    painter.drawText(leftEdge(rect, font.horizontalAdvance(text), look.alignment), baseline, text);
}

bool TextCell::wantsToolTip(const QStyleOptionViewItem& option, const QString& text) const {
    return QFontMetrics(option.font).horizontalAdvance(text) > textRect(option.rect).width();
}

} // namespace songsweep
