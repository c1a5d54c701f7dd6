// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

class KeySort;
struct TrackRecord;

/// The columns of the results table, in their first order.
enum class Column {
    checkbox,
    dtrack,
    name,
    artist,
    album,
    time,
    bitrate,
    sizestring,
    rating,
    playcount,
    dateadded,
    hasartwork,
    sound,
    file,
    location,
};

inline constexpr std::array allColumns = {
    Column::checkbox,  Column::dtrack,     Column::name,       Column::artist, Column::album,
    Column::time,      Column::bitrate,    Column::sizestring, Column::rating, Column::playcount,
    Column::dateadded, Column::hasartwork, Column::sound,      Column::file,   Column::location,
};

/// What draws the cells of a column.
enum class CellKind { checkBox, image, text, stars };

/// Of the values and the title of a column.
enum class Alignment { left, centre, right };

/// Where a text that has no room is cut.
enum class Elision { end, middle };

/// A column, whole: one row of the table that the results table, its header, the screen reader, the sorting
/// and the command line read. A new column is a new row.
struct ColumnInfo {
    Column column;
    std::string_view identifier; ///< the record's key that it shows; "dtrack", "sound" and "file" are no keys
    std::string_view title;      ///< in the header; empty for the two narrow columns
    std::string_view spokenTitle; ///< what a screen reader calls it
    std::string_view toolTip;     ///< of the header; empty for none
    CellKind kind;
    int width; ///< at first, in pixels at a font of 13 pixels
    Alignment alignment;
    Elision elision;

    /// What stands in a cell of text, in UTF-8: of the record, or put into `made`, which outlives it. Null
    /// where the cells are drawn.
    std::string_view (*text)(const TrackRecord& record, std::string& made);
    /// Adds the keys of all rows, by which they stand in order inside their groups and the groups stay in
    /// theirs. One call for all rows, so that none costs a call of its own.
    void (*addKeys)(KeySort& sort, const std::vector<TrackRecord*>& rows, bool ascending);
};

const ColumnInfo& columnInfo(Column column);

/// The name of the record's file with its ending, and the folder in which it lies; all of a location without
/// a
/// "/" is a name.
std::string_view fileName(const TrackRecord& record);
std::string_view fileFolder(const TrackRecord& record);

inline std::string_view identifier(Column column) { return columnInfo(column).identifier; }

} // namespace songsweep
