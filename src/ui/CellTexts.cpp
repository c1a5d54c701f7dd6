// SPDX-License-Identifier: MIT
#include "ui/CellTexts.h"

#include "platform/DecimalPoint.h"
#include "platform/Words.h"
#include "ui/ColumnLook.h"

#include <QCoreApplication>

#include <array>

namespace songsweep {

namespace {

QString fromText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The words of soundWord(), which asks nobody.
[[maybe_unused]] constexpr std::array soundWords = {
    translatable("Columns", "same"), translatable("Columns", "differs"), translatable("Columns", "unsure"),
    translatable("Columns", "not readable")};

QString spokenRating(int stars) {
    if (stars <= 0) return QCoreApplication::translate("CellTexts", "Not rated");
    return QCoreApplication::translate("CellTexts", "Rating: %1 of 5 stars").arg(stars);
}

} // namespace

QString displayText(const TrackRecord& record, Column column) {
    const ColumnInfo& info = columnInfo(column);
    if (info.text == nullptr) return {};
    std::string made;
    const std::string_view text = info.text(record, made);
    if (column == Column::sizestring) return QString::fromStdString(withDecimalPoint(std::string(text)));
    if (column != Column::hasartwork && column != Column::sound) return fromText(text);
    return QCoreApplication::translate("Columns", std::string(text).c_str());
}

QString drawnText(const TrackRecord& record, Column column) {
    return column == Column::location ? fromText(fileFolder(record)) : displayText(record, column);
}

QString spokenText(const TrackRecord& record, Column column) {
    switch (column) {
    case Column::checkbox:
        return record.checkbox ? QCoreApplication::translate("CellTexts", "Marked")
                               : QCoreApplication::translate("CellTexts", "Not marked");
    case Column::dtrack:
        return record.isdead ? QCoreApplication::translate("CellTexts", "File missing")
                             : QCoreApplication::translate("CellTexts", "File present");
    case Column::rating:
        return spokenRating(record.rating);
    default:
        return QStringLiteral("%1: %2").arg(columnLook(column).spokenTitle, displayText(record, column));
    }
}

QString spokenPlace(const RowPlace& place) {
    return QCoreApplication::translate("CellTexts", "Group %1 of %2, copy %3 of %4")
        .arg(place.group)
        .arg(place.groups)
        .arg(place.copy)
        .arg(place.copies);
}

} // namespace songsweep
