// SPDX-License-Identifier: MIT
#include "ui/SWTableView.h"

#include "ui/CheckBoxCell.h"
#include "ui/ColumnLook.h"
#include "ui/HeaderCornerView.h"
#include "ui/MakeCell.h"
#include "ui/SWImageCell.h"
#include "ui/SWLevelIndicatorCell.h"
#include "ui/TablePlace.h"
#include "ui/TextCell.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"
#include "ui/TypeSelect.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace songsweep {

namespace {

std::unique_ptr<PaperCell> makeCellOfKind(CellKind kind, Log& log) {
    switch (kind) {
    case CellKind::checkBox:
        return makeCell<CheckBoxCell>(log);
    case CellKind::image:
        return makeCell<SWImageCell>(log);
    case CellKind::stars:
        return makeCell<SWLevelIndicatorCell>(log);
    case CellKind::text:
        break;
    }
    return makeCell<TextCell>(log);
}

} // namespace

SWTableView::SWTableView(QWidget* parent)
    : QTableView(parent)
    , m_header(new TrackHeaderView(this))
    , m_typeSelect(std::make_unique<TypeSelect>()) {
    setHorizontalHeader(m_header);
    addScrollBarWidget(new HeaderCornerView(*m_header, this), Qt::AlignTop);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setCornerButtonEnabled(false);
    setFrameShape(QFrame::NoFrame);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    connect(m_header, &QHeaderView::sectionClicked, this,
            [this](int section) { Q_EMIT didClickTableColumn(columnOf(section)); });
    connect(m_header, &QHeaderView::sectionResized, this, [this](int section, int, int width) {
        if (m_givingRest) return;
        if (columnOf(section) == Column::location) m_locationWidth = width;
        giveLocationTheRest();
    });
}

SWTableView::~SWTableView() = default;

void SWTableView::setUp(TrackTableModel& model, Log& log) {
    m_model = &model;
    setModel(&model);
    installCells(log);
    applyMetrics();
    setColumnWidths();
    showColumn(Column::sound, false);
}

void SWTableView::showColumn(Column column, bool shown) {
    m_header->setSectionHidden(sectionOf(column), !shown);
}

void SWTableView::installCells(Log& log) {
    for (const Column column : allColumns) {
        std::unique_ptr<PaperCell> cell = makeCellOfKind(columnLook(column).kind, log);
        if (!cell) continue;
        cell->setParent(this);
        setItemDelegateForColumn(sectionOf(column), cell.get());
        m_cells.push_back(cell.release());
    }
}

void SWTableView::applyMetrics() {
    const TableMetrics metrics(font());
    verticalHeader()->setMinimumSectionSize(metrics.rowHeight);
    verticalHeader()->setDefaultSectionSize(metrics.rowHeight);
    verticalScrollBar()->setSingleStep(metrics.rowHeight);
    horizontalScrollBar()->setSingleStep(metrics.rowHeight);
    m_header->applyFont(font());
    for (PaperCell* cell : m_cells)
        cell->setMetrics(metrics);
}

void SWTableView::setColumnWidths() {
    const TableMetrics metrics(font());
    for (const Column column : allColumns)
        setColumnWidth(sectionOf(column), metrics.scaled(columnLook(column).width));
}

void SWTableView::giveLocationTheRest() {
    if (!m_model) return;
    const int section = sectionOf(Column::location);
    const int others = m_header->length() - m_header->sectionSize(section);
    m_givingRest = true;
    m_header->resizeSection(section, std::max(m_locationWidth, viewport()->width() - others));
    m_givingRest = false;
}

void SWTableView::reloadData(const DisplayedList& list) {
    if (m_model->changeTo(list) == TrackTableModel::Change::values) {
        m_model->reload(list);
        return;
    }
    const TablePlace place(*this);
    clearSelection();
    m_model->reload(list);
    place.restore(*this);
}

/// Digits are to have one width, which some fonts give only when asked.
void SWTableView::initViewItemOption(QStyleOptionViewItem* option) const {
    QTableView::initViewItemOption(option);
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    option->font.setFeature("tnum", 1);
    option->fontMetrics = QFontMetrics(option->font);
#endif
}

void SWTableView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (hasFocus() && currentIndex().isValid()) drawCurrentRow();
}

void SWTableView::drawCurrentRow() {
    const QModelIndex current = currentIndex();
    QStyleOptionViewItem option;
    option.widget = this;
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(current));
    const int width = std::min(viewport()->width(), m_header->length());
    const QRect row(0, rowViewportPosition(current.row()), width, rowHeight(current.row()));
    const QColor color = willDisplayCell(option, current).colors.currentOutline;
    QPainter painter(viewport());
    // Filled edges and no drawn line, which would reach out of the row by half a pixel where pixels are
    // scaled.
    painter.fillRect(QRect(row.left(), row.top(), row.width(), 1), color);
    painter.fillRect(QRect(row.left(), row.bottom(), row.width(), 1), color);
    painter.fillRect(QRect(row.left(), row.top(), 1, row.height()), color);
    painter.fillRect(QRect(row.right(), row.top(), 1, row.height()), color);
}

void SWTableView::updateRow(int row) {
    if (row < 0) return;
    viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

void SWTableView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    updateRow(currentIndex().row());
}

void SWTableView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    updateRow(currentIndex().row());
}

void SWTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    updateRow(previous.row());
    updateRow(current.row());
}

void SWTableView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (dx != 0) updateRow(currentIndex().row());
}

void SWTableView::resizeEvent(QResizeEvent* event) {
    giveLocationTheRest();
    QTableView::resizeEvent(event);
    updateRow(currentIndex().row());
}

void SWTableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        applyMetrics();
        if (m_model) setColumnWidths();
    }
}

} // namespace songsweep
