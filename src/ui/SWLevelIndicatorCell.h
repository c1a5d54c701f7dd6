// SPDX-License-Identifier: MIT
#pragma once

#include "ui/PaperCell.h"

namespace songsweep {

/// A rating as stars on the colour of the row: five places, dots where a rated track lacks a star, nothing at
/// all for a track that is not rated.
class SWLevelIndicatorCell : public PaperCell {
    Q_OBJECT
  public:
    using PaperCell::PaperCell;

  protected:
    void drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                      const QModelIndex& index) const override;
};

} // namespace songsweep
