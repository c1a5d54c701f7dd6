// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <QHeaderView>

#include <optional>

namespace songsweep {

/// The titles over the results table: flat, with short separators, the sorted column tinted.
///
/// The sorted column is state of its own and not the sort indicator of the base class, which would turn
/// itself over at every click; here the controller decides. Room for the triangle is kept in every title, so
/// nothing moves when another column is sorted.
class TrackHeaderView : public QHeaderView {
    Q_OBJECT
  public:
    explicit TrackHeaderView(QWidget* parent = nullptr);

    void setSortIndicator(Column column, bool ascending);
    void clearSortIndicator();
    std::optional<Column> sortedColumn() const { return m_sortedColumn; }
    bool isAscending() const { return m_ascending; }

    /// Takes a size a little smaller than that of the table's font.
    void applyFont(const QFont& ofTable);

    /// How wide a column's title may be, so that the triangle stands beside it; in pixels.
    int titleRoom(Column column) const;

    QSize sizeHint() const override;

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void drawTitle(QPainter& painter, const QRect& rect, Column column, bool sorted) const;
    void drawBin(QPainter& painter, const QRect& rect) const;
    QRect titlePlace(const QRect& rect, int width, Qt::Alignment alignment) const;
    void drawTriangle(QPainter& painter, const QRect& section, const QRect& title,
                      Qt::Alignment alignment) const;
    void drawSeparator(QPainter& painter, const QRect& rect) const;
    void drawBaseline(QPainter& painter, const QRect& rect) const;

    std::optional<Column> m_sortedColumn;
    bool m_ascending = true;
};

} // namespace songsweep
