// SPDX-License-Identifier: MIT
#include "ui/CopiedRows.h"

#include "ui/CellTexts.h"
#include "ui/ColumnLook.h"
#include "ui/TrackTableModel.h"

#include <QCoreApplication>
#include <QStringList>

namespace songsweep {

namespace {

QString cellText(const TrackRecord& record, Column column) {
    if (column == Column::checkbox || column == Column::dtrack) {
        const bool isSo = column == Column::checkbox ? record.checkbox : record.isdead;
        return isSo ? QCoreApplication::translate("Columns", "Yes")
                    : QCoreApplication::translate("Columns", "No");
    }
    if (column == Column::rating) return QString::number(record.rating);
    QString text = displayText(record, column);
    for (QChar& character : text)
        if (character.isSpace()) character = QChar::Space;
    return text;
}

} // namespace

QString tabSeparated(const TrackTableModel& model, const std::vector<int>& rows) {
    if (rows.empty()) return {};
    QString text;
    QStringList cells;
    for (const Column column : allColumns)
        cells << columnLook(column).spokenTitle;
    text += cells.join(QChar::Tabulation) + QChar::LineFeed;
    for (const int row : rows) {
        cells.clear();
        for (const Column column : allColumns)
            cells << cellText(*model.rows().at(static_cast<std::size_t>(row)), column);
        text += cells.join(QChar::Tabulation) + QChar::LineFeed;
    }
    return text;
}

} // namespace songsweep
