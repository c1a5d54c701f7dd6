// SPDX-License-Identifier: MIT
#include "ui/TrackTableModel.h"

#include "library/Groups.h"
#include "ui/CellTexts.h"
#include "ui/ColumnLook.h"

#include <algorithm>
#include <unordered_map>

namespace songsweep {

namespace {

/// The first row of every group.
std::vector<int> groupStarts(const std::vector<TrackRecord*>& rows) {
    std::vector<int> starts;
    for (const RowGroup group : groupsOf(rows))
        starts.push_back(static_cast<int>(group.first));
    return starts;
}

} // namespace

TrackTableModel::TrackTableModel(QObject* parent)
    : QAbstractTableModel(parent) {}

TrackTableModel::Change TrackTableModel::changeTo(const DisplayedList& list) const {
    if (list.rows.size() != m_list.rows.size()) return Change::rows;
    return list.rows == m_list.rows ? Change::values : Change::order;
}

TrackTableModel::Change TrackTableModel::reload(const DisplayedList& list) {
    const Change change = changeTo(list);
    switch (change) {
    case Change::values:
        announceValues();
        break;
    case Change::order:
        reorder(list);
        break;
    case Change::rows:
        beginResetModel();
        takeOver(list);
        endResetModel();
        break;
    }
    return change;
}

void TrackTableModel::takeOver(const DisplayedList& list) {
    m_list = list;
    m_groupStarts.clear();
}

void TrackTableModel::announceValues() {
    if (m_list.rows.empty()) return;
    m_groupStarts.clear();
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void TrackTableModel::reorder(const DisplayedList& list) {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    changePersistentIndexList(before, movedIndexes(before, list.rows));
    takeOver(list);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

QModelIndexList TrackTableModel::movedIndexes(const QModelIndexList& indexes,
                                              const std::vector<TrackRecord*>& newRows) const {
    std::unordered_map<const TrackRecord*, int> newRowOf;
    newRowOf.reserve(static_cast<std::size_t>(indexes.size()));
    for (const QModelIndex& index : indexes)
        newRowOf.emplace(m_list.rows[static_cast<std::size_t>(index.row())], -1);
    for (std::size_t row = 0; row < newRows.size() && !newRowOf.empty(); ++row)
        if (const auto found = newRowOf.find(newRows[row]); found != newRowOf.end())
            found->second = static_cast<int>(row);

    QModelIndexList moved;
    moved.reserve(indexes.size());
    for (const QModelIndex& index : indexes) {
        const int row = newRowOf.at(m_list.rows[static_cast<std::size_t>(index.row())]);
        moved.append(row < 0 ? QModelIndex() : createIndex(row, index.column()));
    }
    return moved;
}

void TrackTableModel::setDtrackImage(QIcon dtrackImage) {
    m_dtrackImage = std::move(dtrackImage);
    announceValues();
}

void TrackTableModel::setObjectValueHandler(std::function<void(Column, int, bool)> handler) {
    m_objectValueHandler = std::move(handler);
}

void TrackTableModel::setMarkReason(std::function<QString(int)> markReason) {
    m_markReason = std::move(markReason);
}

int TrackTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_list.rows.size());
}

int TrackTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : songsweep::columnCount;
}

QVariant TrackTableModel::objectValueForTableColumn(Column column, int row) const {
    const TrackRecord& record = *m_list.rows.at(static_cast<std::size_t>(row));
    switch (column) {
    case Column::checkbox:
        return record.checkbox;
    case Column::dtrack:
        return record.isdead && !m_dtrackImage.isNull() ? QVariant(m_dtrackImage) : QVariant();
    case Column::rating:
        return record.rating;
    default:
        return displayText(record, column);
    }
}

QVariant TrackTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Column column = columnOf(index.column());
    const TrackRecord& record = *m_list.rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        if (columnLook(column).kind != CellKind::text) return {};
        return displayText(record, column);
    case Qt::CheckStateRole:
        if (column != Column::checkbox) return {};
        return record.checkbox ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
        return column == Column::dtrack ? objectValueForTableColumn(column, index.row()) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(column, index.row());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(columnLook(column).alignment);
    case Qt::AccessibleTextRole:
        return spokenText(record, column);
    case Qt::AccessibleDescriptionRole:
        return spokenRow(index.row());
    case TintedRole:
        return record.showid;
    case MissingRole:
        return record.isdead;
    case StarsRole:
        return record.rating;
    case DrawnRole:
        return drawnText(record, column);
    default:
        return {};
    }
}

QString TrackTableModel::toolTip(Column column, int row) const {
    const TrackRecord& record = *m_list.rows[static_cast<std::size_t>(row)];
    switch (columnLook(column).kind) {
    case CellKind::checkBox:
        return m_markReason ? m_markReason(row) : QString();
    case CellKind::image:
        return record.isdead ? spokenText(record, column) : QString();
    case CellKind::stars:
        return spokenText(record, column);
    case CellKind::text:
        return displayText(record, column);
    }
    return {};
}

QString TrackTableModel::spokenRow(int row) const {
    if (m_groupStarts.empty()) m_groupStarts = groupStarts(m_list.rows);
    const auto next = std::upper_bound(m_groupStarts.begin(), m_groupStarts.end(), row);
    const int start = *std::prev(next);
    const int end = next == m_groupStarts.end() ? rowCount() : *next;
    return spokenPlace({.group = static_cast<int>(next - m_groupStarts.begin()),
                        .groups = static_cast<int>(m_groupStarts.size()),
                        .copy = row - start + 1,
                        .copies = end - start});
}

bool TrackTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
    if (role != Qt::CheckStateRole && role != Qt::EditRole) return false;
    const Column column = columnOf(index.column());
    if (m_objectValueHandler) m_objectValueHandler(column, index.row(), value.toInt() != Qt::Unchecked);
    return m_objectValueHandler && column == Column::checkbox;
}

QVariant TrackTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= songsweep::columnCount) return {};
    const ColumnLook& look = columnLook(columnOf(section));
    switch (role) {
    case Qt::DisplayRole:
        return look.title;
    case Qt::ToolTipRole:
        return look.toolTip;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(look.alignment);
    case Qt::AccessibleTextRole:
        return look.spokenTitle;
    default:
        return {};
    }
}

Qt::ItemFlags TrackTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return columnOf(index.column()) == Column::checkbox ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace songsweep
