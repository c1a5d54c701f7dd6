// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace songsweep {

class TrackTableModel;

/// Rows as tables take them from the clipboard: a line of titles, then one for each row, the cells of text
/// between tabs. A tab or a line break in a value becomes a blank. Empty where there is no row.
QString tabSeparated(const TrackTableModel& model, const std::vector<int>& rows);

} // namespace songsweep
