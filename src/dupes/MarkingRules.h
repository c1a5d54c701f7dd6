// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "dupes/MarkRule.h"

#include <string_view>

namespace songsweep {

/// The operations that set the check boxes of a whole list of duplicate groups by a rule of the table
/// (MarkRule.h).
///
/// Free functions over the displayed rows, without a widget. A rule looks at each group by itself, chooses
/// the copy that is kept, and sets the check box of every row: those that lose by the rule, or with
/// except-one every copy but the kept one. A track whose file is missing is always checked and never counts
/// as a value. A group is a run of neighbours of one "gid". One pass over the rows and one over each group.
/// Main thread, while no worker changes the rows.

/// The rules of mark type 0 to 13; any other number checks the tracks whose files are missing.
void markItems(const TrackRows& rows, MarkType markType, bool exceptOne);
/// Checks the copies of a kind, an extension in upper case, compared exactly.
void markItemsByKind(const TrackRows& rows, std::string_view kind, bool exceptOne);
/// Checks the copies inside a folder.
void markItemsByFolder(const TrackRows& rows, std::string_view folder, bool exceptOne);

/// Whichever of the three belongs to the choice.
void applyMarkChoice(const TrackRows& rows, const MarkChoice& choice);

/// What the choice would do. Looks at the rows once and changes nothing.
MarkEffect markEffect(const TrackRows& rows, const MarkChoice& choice);

/// Whether the rule by kind or folder matches a row, be its file there or not; true of every other rule. One
/// that matches none would, with except-one, keep the last copy of each group whatever was asked for.
bool matchesRow(const TrackRows& rows, const MarkChoice& choice);

/// Whether the path is the folder or lies below it. Exact: a folder that ends with "/", or an empty one,
/// holds no path but itself.
bool isSubfolder(std::string_view folder, std::string_view path);

} // namespace songsweep
