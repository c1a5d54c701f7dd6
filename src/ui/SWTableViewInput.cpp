// SPDX-License-Identifier: MIT
#include "library/Groups.h"
#include "ui/ColumnLook.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"
#include "ui/TypeSelect.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <algorithm>

namespace songsweep {

namespace {

bool isPlainMouseEvent(const QEvent* event) {
    if (!event || !event->isPointerEvent()) return false;
    return !(static_cast<const QInputEvent*>(event)->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
}

} // namespace

std::vector<int> SWTableView::selectedRows() const {
    std::vector<int> rows;
    if (!selectionModel()) return rows;
    QItemSelection ranges = selectionModel()->selection();
    std::sort(ranges.begin(), ranges.end(),
              [](const QItemSelectionRange& a, const QItemSelectionRange& b) { return a.top() < b.top(); });
    for (const QItemSelectionRange& range : std::as_const(ranges))
        for (int row = std::max(range.top(), rows.empty() ? 0 : rows.back() + 1); row <= range.bottom();
             ++row)
            rows.push_back(row);
    return rows;
}

int SWTableView::selectedRow() const {
    const QModelIndex current = currentIndex();
    if (current.isValid() && selectionModel()->isSelected(current)) return current.row();
    int first = -1;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        if (first < 0 || range.top() < first) first = range.top();
    return first;
}

void SWTableView::selectRows(const std::vector<bool>& chosen) {
    QItemSelection selection;
    const int rows = static_cast<int>(chosen.size());
    for (int first = 0; first < rows; ++first) {
        if (!chosen[static_cast<std::size_t>(first)]) continue;
        int last = first;
        while (last + 1 < rows && chosen[static_cast<std::size_t>(last) + 1])
            ++last;
        selection.append(
            QItemSelectionRange(m_model->index(first, 0), m_model->index(last, columnCount - 1)));
        first = last;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void SWTableView::keyPressEvent(QKeyEvent* event) { keyDown(event); }

void SWTableView::keyDown(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        event->accept();
        Q_EMIT tableviewSpacebar();
        return;
    }
    const bool isUpOrDown = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isUpOrDown && event->modifiers().testFlag(Qt::ControlModifier)) return goToGroup(*event);
    QTableView::keyPressEvent(event);
}

/// The first row of the group before or behind the current row's; from inside a group, up is its own first.
int SWTableView::rowOfNeighbouringGroup(int key) const {
    const std::vector<TrackRecord*>& rows = m_model->rows();
    auto row = static_cast<std::size_t>(std::max(currentIndex().row(), 0));
    if (key == Qt::Key_Down) {
        const std::size_t next = groupEnd(rows, row);
        return static_cast<int>(next < rows.size() ? next : row);
    }
    if (row > 0) --row; // the first row of a group goes on to the one before
    while (row > 0 && rows[row - 1]->gid == rows[row]->gid)
        --row;
    return static_cast<int>(row);
}

void SWTableView::goToGroup(const QKeyEvent& event) {
    if (m_model->rows().empty()) return;
    const QModelIndex target = m_model->index(rowOfNeighbouringGroup(event.key()), sectionOf(Column::name));
    if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
        // The view's own command would toggle the row, as Ctrl is held.
        const auto command = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
        return selectionModel()->setCurrentIndex(target, command);
    }
    const int from = currentIndex().row();
    QItemSelection rows(m_model->index(std::min(from, target.row()), 0),
                        m_model->index(std::max(from, target.row()), columnCount - 1));
    selectionModel()->select(rows, QItemSelectionModel::Select);
    selectionModel()->setCurrentIndex(target, QItemSelectionModel::NoUpdate);
}

QModelIndex SWTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int rows = m_model->rowCount();
    const int column = currentIndex().isValid() ? currentIndex().column() : sectionOf(Column::name);
    switch (action) {
    case MoveHome:
        return m_model->index(0, column);
    case MoveEnd:
        return m_model->index(rows - 1, column);
    case MoveLeft:
    case MoveRight:
        return currentIndex();
    default:
        return QTableView::moveCursor(action, modifiers);
    }
}

void SWTableView::keyboardSearch(const QString& typed) {
    const QModelIndex current = currentIndex();
    const bool currentCounts = current.isValid() && !selectionModel()->isSelected(current);
    const int row = m_typeSelect->find(m_model->rows(), current.row(), currentCounts, typed);
    if (row < 0) return;
    const int column = current.isValid() ? current.column() : sectionOf(Column::name);
    setCurrentIndex(m_model->index(row, column));
}

/// A click on a check box sets the mark of that row and leaves the selection alone.
QItemSelectionModel::SelectionFlags SWTableView::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    const bool onBox = index.isValid() && columnOf(index.column()) == Column::checkbox;
    if (onBox && isPlainMouseEvent(event)) return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}

void SWTableView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    m_pressedOnBox = index.isValid() && columnOf(index.column()) == Column::checkbox;
    QTableView::mousePressEvent(event);
}

void SWTableView::mouseMoveEvent(QMouseEvent* event) {
    if (m_pressedOnBox && event->buttons() != Qt::NoButton) return;
    QTableView::mouseMoveEvent(event);
}

void SWTableView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && columnOf(index.column()) == Column::checkbox) {
        mousePressEvent(event); // a second click, which the base class would not let toggle the box again
        return;
    }
    m_pressedOnBox = false;
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) Q_EMIT tableviewDoubleClick();
}

QMenu* SWTableView::menuForEvent(const QPoint& position) {
    setFocus(Qt::MouseFocusReason);
    const QModelIndex clicked = indexAt(position);
    if (clicked.isValid() && !selectionModel()->isSelected(clicked)) {
        const auto command = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
        selectionModel()->setCurrentIndex(clicked, command);
    }
    return selectionModel()->hasSelection() ? m_contextMenu : disabledCopy();
}

QMenu* SWTableView::disabledCopy() {
    if (!m_contextMenu) return nullptr;
    auto* copy = new QMenu(this);
    copy->setAttribute(Qt::WA_DeleteOnClose);
    for (const QAction* action : m_contextMenu->actions()) {
        if (action->isSeparator())
            copy->addSeparator();
        else
            copy->addAction(action->icon(), action->text())->setEnabled(false);
    }
    return copy;
}

/// A menu asked for by a key belongs to the selection and opens at the current row.
QPoint SWTableView::keyboardMenuPosition() const {
    const QRect row = visualRect(currentIndex());
    const bool inSight = currentIndex().isValid() && viewport()->rect().intersects(row);
    return inSight ? row.center() : viewport()->rect().center();
}

void SWTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint place = byKey ? keyboardMenuPosition() : event->pos();
    QMenu* menu = byKey && selectionModel()->hasSelection() ? m_contextMenu : menuForEvent(place);
    if (menu) menu->popup(viewport()->mapToGlobal(place));
    event->accept();
}

} // namespace songsweep
