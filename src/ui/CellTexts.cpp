// SPDX-License-Identifier: MIT
#include "ui/CellTexts.h"

#include "library/ValueFormats.h"
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
    switch (column) {
    case Column::checkbox:
    case Column::dtrack:
    case Column::rating:
        return {};
    case Column::name:
        return fromText(record.name);
    case Column::artist:
        return fromText(record.artist);
    case Column::album:
        return fromText(record.album);
    case Column::time:
        return fromText(record.time);
    case Column::bitrate:
        return fromText(record.bitrate);
    case Column::sizestring:
        return QString::fromStdString(sizestring(record));
    case Column::playcount:
        return fromText(record.playcount);
    case Column::dateadded:
        return QString::fromStdString(dateadded(record));
    case Column::hasartwork:
        return record.hasartwork ? QStringLiteral("Yes") : QStringLiteral("No");
    case Column::location:
        return fromText(record.location);
    }
    return {};
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
