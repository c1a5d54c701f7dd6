// SPDX-License-Identifier: MIT
#pragma once

#include "library/Columns.h"

#include <QString>

namespace songsweep {

/// How a column of the results table looks at first: its row of the table of columns, in Qt's types.
struct ColumnLook {
    QString title;           ///< in the header; empty for the two narrow columns
    QString toolTip;         ///< of the header; empty for none
    QString spokenTitle;     ///< what a screen reader calls the column
    int width;               ///< in pixels at a font of 13 pixels
    Qt::Alignment alignment; ///< of values and title alike
    Qt::TextElideMode elision;
    CellKind kind;
};

const ColumnLook& columnLook(Column column);

/// The column at a place of allColumns, which is its number in the model.
constexpr Column columnOf(int section) { return allColumns.at(static_cast<std::size_t>(section)); }
constexpr int sectionOf(Column column) { return static_cast<int>(column); }
inline constexpr int columnCount = static_cast<int>(allColumns.size());

} // namespace songsweep
