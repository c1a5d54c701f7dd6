// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace songsweep {

/// A cell of the list of deletions: as high and with as much air beside its text as those of the table of
/// tracks. Main thread.
class CleanupCell : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace songsweep
