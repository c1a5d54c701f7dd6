// SPDX-License-Identifier: MIT
#pragma once

#include "ui/PaperCell.h"

namespace songsweep {

/// A cell of one line of text, aligned and elided as its column says.
///
/// Every text stands on the baseline of the table's own font, whatever other fonts its characters come from.
/// A tool tip shows the whole text where it is elided.
class TextCell : public PaperCell {
    Q_OBJECT
  public:
    using PaperCell::PaperCell;

  protected:
    void drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                      const QModelIndex& index) const override;
    bool wantsToolTip(const QStyleOptionViewItem& option, const QString& text) const override;

  private:
    QRect textRect(const QRect& frame) const;
};

} // namespace songsweep
