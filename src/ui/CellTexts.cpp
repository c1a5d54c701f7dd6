// SPDX-License-Identifier: MIT
#include "ui/CellTexts.h"

#include "ui/ColumnLook.h"

namespace songsweep {

namespace {

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString spokenRating(int stars) {
    if (stars <= 0) return QStringLiteral("Not rated");
    return QStringLiteral("Rating: %1 of 5 stars").arg(stars);
}

} // namespace

QString displayText(const TrackRecord& record, Column column) {
    const ColumnInfo& info = columnInfo(column);
    if (info.text == nullptr) return {};
    std::string made;
    return fromText(info.text(record, made));
}

QString drawnText(const TrackRecord& record, Column column) {
    return column == Column::location ? fromText(fileFolder(record)) : displayText(record, column);
}

QString spokenText(const TrackRecord& record, Column column) {
    switch (column) {
    case Column::checkbox:
        return record.checkbox ? QStringLiteral("Marked") : QStringLiteral("Not marked");
    case Column::dtrack:
        return record.isdead ? QStringLiteral("File missing") : QStringLiteral("File present");
    case Column::rating:
        return spokenRating(record.rating);
    default:
        return QStringLiteral("%1: %2").arg(columnLook(column).spokenTitle, displayText(record, column));
    }
}

QString spokenPlace(const RowPlace& place) {
    return QStringLiteral("Group %1 of %2, copy %3 of %4")
        .arg(place.group)
        .arg(place.groups)
        .arg(place.copy)
        .arg(place.copies);
}

} // namespace songsweep
