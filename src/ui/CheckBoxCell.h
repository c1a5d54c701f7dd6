// SPDX-License-Identifier: MIT
#pragma once

#include "ui/PaperCell.h"

namespace songsweep {

/// A check box in the middle of its cell. The whole cell is its target, so that nobody needs to aim.
class CheckBoxCell : public PaperCell {
    Q_OBJECT
  public:
    using PaperCell::PaperCell;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

  protected:
    void drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                      const QModelIndex& index) const override;
};

} // namespace songsweep
