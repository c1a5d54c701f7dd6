// SPDX-License-Identifier: MIT
#include "ui/CheckBoxCell.h"

#include "theme/Painting.h"

#include <QMouseEvent>
#include <QPainter>

namespace songsweep {

namespace {

bool isChecked(const QModelIndex& index) { return index.data(Qt::CheckStateRole).toInt() == Qt::Checked; }

/// A square of the given side in the middle of the frame, on whole pixels.
QRect centred(const QRect& frame, int side) {
    return {frame.left() + (frame.width() - side) / 2, frame.top() + (frame.height() - side) / 2, side, side};
}

} // namespace

void CheckBoxCell::drawInterior(QPainter& painter, const QStyleOptionViewItem& option,
                                const RowColors& colors, const QModelIndex& index) const {
    const QRect box = centred(option.rect, metrics().box);
    const Qt::CheckState state = isChecked(index) ? Qt::Checked : Qt::Unchecked;
    painting::checkBox(painter, box, metrics().factor, state,
                       {.fill = colors.boxFill,
                        .outline = colors.boxOutline,
                        .checkedFill = colors.checkedBox,
                        .checkedOutline = colors.checkedBox,
                        .tick = colors.tick});
}

bool CheckBoxCell::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index) {
    if (event->type() != QEvent::MouseButtonRelease) return false;
    const auto* release = static_cast<QMouseEvent*>(event);
    if (release->button() != Qt::LeftButton || !option.rect.contains(release->position().toPoint()))
        return false;
    const Qt::CheckState toggled = isChecked(index) ? Qt::Unchecked : Qt::Checked;
    return model->setData(index, toggled, Qt::CheckStateRole);
}

} // namespace songsweep
