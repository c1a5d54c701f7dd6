// SPDX-License-Identifier: MIT
#pragma once

#include "theme/RowColors.h"
#include "ui/TableMetrics.h"

#include <QStyledItemDelegate>

namespace songsweep {

/// The colours of one row.
struct RowLook {
    QColor background;
    const RowColors& colors;
};

/// The look of the row of an index: on the band of its group, selected and active as the option says.
RowLook willDisplayCell(const QStyleOptionViewItem& option, const QModelIndex& index);

/// What the cells of the results table have in common: they fill their whole frame with the colour of the row
/// and draw their content over it.
///
/// No style takes part, since rows look the same in every theme and on every platform. A cell has no state of
/// the row it draws; one serves its whole column.
class PaperCell : public QStyledItemDelegate {
    Q_OBJECT
  public:
    explicit PaperCell(QObject* parent = nullptr);

    void setMetrics(const TableMetrics& metrics) { m_metrics = metrics; }
    const TableMetrics& metrics() const { return m_metrics; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const final;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  protected:
    /// Draws the content; the frame is filled already.
    virtual void drawInterior(QPainter& painter, const QStyleOptionViewItem& option, const RowColors& colors,
                              const QModelIndex& index) const = 0;

    /// Fills the frame with the background, then draws the content.
    void drawWithFrame(QPainter& painter, const QStyleOptionViewItem& option, const RowLook& look,
                       const QModelIndex& index) const;

    /// Whether the cell has a use for its tool tip, which is not empty.
    virtual bool wantsToolTip(const QStyleOptionViewItem& option, const QString& text) const;

  private:
    TableMetrics m_metrics;
};

} // namespace songsweep
