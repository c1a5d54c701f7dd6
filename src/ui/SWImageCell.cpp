// SPDX-License-Identifier: MIT
#include "ui/SWImageCell.h"

#include <QIcon>
#include <QPainter>

namespace songsweep {

void SWImageCell::drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors&,
                               const QModelIndex& index) const {
    const auto image = index.data(Qt::DecorationRole).value<QIcon>();
    if (image.isNull()) return;
    const int side = metrics().image;
    const QPoint corner(option.rect.left() + (option.rect.width() - side) / 2,
                        option.rect.top() + (option.rect.height() - side) / 2);
    image.paint(&painter, QRect(corner, QSize(side, side)));
}

} // namespace songsweep
