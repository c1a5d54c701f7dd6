// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkReason.h"
#include "dupes/MarkType.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace songsweep {

struct MarkChoice;

using TrackRows = std::vector<TrackRecord*>;

/// What a choice would do to rows.
struct MarkEffect {
    int marked = 0;      ///< how many rows it would check
    bool inForce = true; ///< the rows are checked exactly so already
};

inline constexpr std::size_t noRow = static_cast<std::size_t>(-1);

/// What a choice does to one group.
struct GroupMarks {
    std::vector<bool> checked; ///< of each row from the group's first
    std::size_t kept = noRow;  ///< the row of the kept copy
};

/// The walks over rows that a rule is used for. One pass each.
struct MarkWalks {
    void (*apply)(const TrackRows& rows, const MarkChoice& choice);
    MarkEffect (*effect)(const TrackRows& rows, const MarkChoice& choice);
    GroupMarks (*evaluate)(const TrackRows& rows, std::size_t first, std::size_t end,
                           const MarkChoice& choice);
};

/// What a rule looks at: a button of the mark dialog, by its tag.
enum class MarkField { bitrate, time, size, rating, playCount, dateAdded, artwork, kind, folder };

/// A marking rule, whole: one row of the table that the dialog, the command line, the marking and the reasons
/// read.
///
///     for (const MarkRule& rule : markRules())
///         if (rule.field == MarkField::size) combo->addItem(rule.item);
///
/// A new rule is a new row. The comparison is named in the row as a type, of which the compiler makes whole
/// walks over the rows: choosing a rule costs one indirect call a walk, and a record costs none.
struct MarkRule {
    MarkType type;
    MarkField field;
    const char* name; ///< on the command line: "highest-bitrate"
    const char* item; ///< in the dialog's list of its field: "Highest"; null where the field has no such list
    MarkWalks walks;  ///< over the rows, by the rule's comparison
    MarkWords words;  ///< for the reason
};

/// All rules: for each field the dialog's first item stands before the other.
std::span<const MarkRule> markRules();

/// The rule of a type. `none` and every number that is no rule have one in common that checks no live track;
/// it is not among markRules().
const MarkRule& markRule(MarkType type);
/// The rule of a name of the command line; null where there is none.
const MarkRule* markRuleNamed(std::string_view name);

} // namespace songsweep
