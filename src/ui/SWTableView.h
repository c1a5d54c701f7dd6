// SPDX-License-Identifier: MIT
#pragma once

#include "library/DisplayedList.h"

#include <QTableView>

#include <memory>
#include <vector>

class QMenu;

namespace songsweep {

class Log;
class PaperCell;
class TrackHeaderView;
class TrackTableModel;
class TypeSelect;

/// The results table: whole rows, selected several at a time, on bands of paper.
///
/// Shows a TrackTableModel and tells by signals what the user asks for; it changes no record itself.
/// Selections are handled as ranges, so that a million selected rows cost no more than one. Main thread.
class SWTableView : public QTableView {
    Q_OBJECT
  public:
    explicit SWTableView(QWidget* parent = nullptr);
    ~SWTableView() override;

    /// Shows the model, which stays the caller's, with the cells of every column. Cells that cannot be made
    /// are reported to the log and left out.
    void setUp(TrackTableModel& model, Log& log);
    /// All columns are shown at first but that of sounds, which has nothing to say before they were compared.
    void showColumn(Column column, bool shown);

    /// Reloads the model from the list. Selection, current row and scroll place follow the tracks; where the
    /// current track is gone, the nearest row that is left becomes current.
    void reloadData(const DisplayedList& list);

    /// The selected rows, ascending.
    std::vector<int> selectedRows() const;
    /// The row that actions work on: the current row where it is selected, else the first selected; -1 for
    /// none.
    int selectedRow() const;
    /// Makes the only selected rows those that are set in `chosen`, which has an entry for each row.
    void selectRows(const std::vector<bool>& chosen);

    TrackHeaderView& header() const { return *m_header; }

    /// The context menu; stays the caller's.
    void setContextMenu(QMenu* menu) { m_contextMenu = menu; }
    /// Adjusts the selection to the row at a point of the viewport, then gives the context menu, or where
    /// nothing is selected a copy of it with every item disabled, which deletes itself when closed.
    QMenu* menuForEvent(const QPoint& position);

    /// Jumps to the next track whose name begins with what was typed.
    void keyboardSearch(const QString& typed) override;

  Q_SIGNALS:
    void tableviewSpacebar();
    void tableviewDoubleClick();
    void didClickTableColumn(songsweep::Column column);

  protected:
    /// The space bar is an event of its own, Ctrl with Up and Down goes by groups; every other key goes to
    /// the base class.
    void keyDown(QKeyEvent* event);

    /// Home and End go to the first and the last row, and Left and Right nowhere, since rows are what is
    /// current here and not cells.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;

  private:
    friend class TablePlace;

    void applyMetrics();
    void setColumnWidths();
    void installCells(Log& log);
    void giveLocationTheRest();
    void drawCurrentRow();
    void updateRow(int row);
    int rowOfNeighbouringGroup(int key) const;
    void goToGroup(const QKeyEvent& event);
    QMenu* disabledCopy();
    QPoint keyboardMenuPosition() const;

    TrackTableModel* m_model = nullptr;
    TrackHeaderView* m_header = nullptr;
    QMenu* m_contextMenu = nullptr;
    std::vector<PaperCell*> m_cells;
    std::unique_ptr<TypeSelect> m_typeSelect;
    int m_locationWidth = 0; ///< as wide as the user wants the last column to be at least
    bool m_givingRest = false;
    bool m_pressedOnBox = false;
};

} // namespace songsweep
