// SPDX-License-Identifier: MIT
#include "theme/Painting.h"

#include <QPainter>

namespace songsweep::painting {

void dividingLine(const Canvas& canvas, const QRect& rect, Qt::Orientation orientation) {
    QRect line = rect;
    if (orientation == Qt::Horizontal)
        line.setRect(rect.left(), rect.top() + (rect.height() - 1) / 2, rect.width(), 1);
    else
        line.setRect(rect.left() + (rect.width() - 1) / 2, rect.top(), 1, rect.height());
    canvas.painter.fillRect(line, canvas.colors.line);
}

void toolBar(const Canvas& canvas, const QRect& rect) {
    canvas.painter.fillRect(rect, canvas.colors.window);
    canvas.painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), canvas.colors.line);
}

void toolBarSeparator(const Canvas& canvas, const QRect& rect) {
    constexpr qreal height = 20;
    QRect line(0, 0, 1, qRound(height * canvas.scale));
    line.moveCenter(rect.center());
    canvas.painter.fillRect(line, canvas.colors.line);
}

void menuBarItem(const Canvas& canvas, const QStyleOptionMenuItem& item, const QStyle& style) {
    constexpr qreal radius = 4;
    const bool enabled = (item.state & QStyle::State_Enabled) != 0;
    canvas.painter.fillRect(item.rect, canvas.colors.window);
    if (enabled && (item.state & QStyle::State_Selected) != 0) {
        const bool open = (item.state & QStyle::State_Sunken) != 0;
        roundedBox(canvas, item.rect.adjusted(0, 1, 0, -1), radius * canvas.scale,
                   open ? canvas.colors.pressed : canvas.colors.hover, QColor());
    }
    const bool underlined = style.styleHint(QStyle::SH_UnderlineShortcut, &item) != 0;
    const int flags =
        Qt::AlignCenter | Qt::TextSingleLine | (underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
    style.drawItemText(&canvas.painter, item.rect, flags, item.palette, enabled, item.text,
                       QPalette::WindowText);
}

void popupPanel(const Canvas& canvas, const QRect& rect) {
    canvas.painter.fillRect(rect, canvas.colors.buttonBorder);
    canvas.painter.fillRect(rect.adjusted(1, 1, -1, -1), canvas.colors.header);
}

void headerSection(const Canvas& canvas, const QStyleOptionHeader& header) {
    constexpr qreal air = 6;
    const bool sorted = header.sortIndicator != QStyleOptionHeader::None;
    canvas.painter.fillRect(header.rect, sorted ? canvas.colors.sortedHeader : canvas.colors.header);
    const int inset = qRound(air * canvas.scale);
    const QRect separator(header.rect.right(), header.rect.top() + inset, 1,
                          header.rect.height() - 2 * inset);
    canvas.painter.fillRect(separator, canvas.colors.line);
}

} // namespace songsweep::painting
