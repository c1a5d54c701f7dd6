// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "library/TrackRecord.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// The rules that set the check boxes of a whole list of duplicate groups.
///
/// Free functions over the displayed rows, without a widget. A rule looks at each group by itself, chooses
/// the copy that is kept, and sets the check box of every row: those that lose by the rule, or with
/// except-one every copy but the kept one. A track whose file is missing is always checked and never counts
/// as a value. A group is a run of neighbours of one "gid". One pass over the rows and one over each group;
/// nothing is allocated. Main thread, while no worker changes the rows.

/// The numbers of the rules, as the mark dialog and the log know them.
namespace markType {
inline constexpr std::int32_t none = -1;
inline constexpr std::int32_t highestBitrate = 0;
inline constexpr std::int32_t lowestBitrate = 1;
inline constexpr std::int32_t longest = 2;
inline constexpr std::int32_t shortest = 3;
inline constexpr std::int32_t largest = 4;
inline constexpr std::int32_t smallest = 5;
inline constexpr std::int32_t earliestAdded = 6;
inline constexpr std::int32_t latestAdded = 7;
inline constexpr std::int32_t withArtwork = 8;
inline constexpr std::int32_t withoutArtwork = 9;
inline constexpr std::int32_t highestRating = 10;
inline constexpr std::int32_t lowestRating = 11;
inline constexpr std::int32_t mostPlayed = 12;
inline constexpr std::int32_t leastPlayed = 13;
inline constexpr std::int32_t kind = 100;
inline constexpr std::int32_t folder = 200;
} // namespace markType

using TrackRows = std::vector<TrackRecord*>;

/// The rules of mark type 0 to 13; any other number checks the tracks whose files are missing.
void markItems(const TrackRows& rows, std::int32_t markType, bool exceptOne);
/// Checks the copies of a kind, an extension in upper case, compared exactly.
void markItemsByKind(const TrackRows& rows, std::string_view kind, bool exceptOne);
/// Checks the copies inside a folder.
void markItemsByFolder(const TrackRows& rows, std::string_view folder, bool exceptOne);

/// Whichever of the three belongs to the choice.
void applyMarkChoice(const TrackRows& rows, const MarkChoice& choice);

/// What a choice would do to rows.
struct MarkEffect {
    int marked = 0;      ///< how many rows it would check
    bool inForce = true; ///< the rows are checked exactly so already
};

/// Looks at the rows once and changes nothing.
MarkEffect markEffect(const TrackRows& rows, const MarkChoice& choice);

/// Whether the path is the folder or lies below it. Exact: a folder that ends with "/", or an empty one,
/// holds no path but itself.
bool isSubfolder(std::string_view folder, std::string_view path);

/// The names of the rules on the command line ("highest-bitrate"), and the mark type of one.
std::vector<std::string> markRuleNames();
std::optional<std::int32_t> markTypeOfRule(std::string_view name);

} // namespace songsweep
