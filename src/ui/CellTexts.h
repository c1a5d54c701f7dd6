// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"
#include "library/TrackRecord.h"

#include <QString>

namespace songsweep {

/// The texts of a cell. Nothing is kept: a text is made when somebody looks, since of a million rows only
/// some thirty are in sight.

/// What stands in a cell of text; empty for the columns that are drawn (check box, missing file, rating).
QString displayText(const TrackRecord& record, Column column);

/// What is drawn of it: of a location the folder, since its name stands in a column of its own.
QString drawnText(const TrackRecord& record, Column column);

/// What a screen reader says for a cell, "Title: value": "Bit rate: 320", "Rating: 3 of 5 stars" or "Not
/// rated", "File missing" or "File present", "Marked" or "Not marked".
QString spokenText(const TrackRecord& record, Column column);

/// Where a row stands, all counted from 1: "Group 3 of 5, copy 2 of 3".
struct RowPlace {
    int group;
    int groups;
    int copy;
    int copies;
};
QString spokenPlace(const RowPlace& place);

} // namespace songsweep
