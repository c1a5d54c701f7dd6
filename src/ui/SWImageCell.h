// SPDX-License-Identifier: MIT
#pragma once

#include "ui/PaperCell.h"

namespace songsweep {

/// A picture in the middle of its cell, on the colour of the row; nothing where the model gives no picture.
class SWImageCell : public PaperCell {
    Q_OBJECT
  public:
    using PaperCell::PaperCell;

  protected:
    void drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                      const QModelIndex& index) const override;
};

} // namespace songsweep
