// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkingRules.h"
#include "library/Groups.h"

#include <cstddef>
#include <string>

namespace songsweep {

/// What a choice says of rows: the verdict, and its reason in words, "lower bit rate than the kept copy: 128
/// against 320".
///
/// Evaluated when somebody looks, a group at a time; the group looked at last is remembered, so that asking
/// for every row in turn is linear. The rows outlive it and do not change meanwhile.
class MarkVerdicts {
  public:
    MarkVerdicts(const TrackRows& rows, MarkChoice choice);

    const MarkChoice& choice() const { return m_choice; }

    MarkVerdict of(std::size_t row);
    /// Why a row stays, "kept: 320 against 128", by the values that the rule compares; empty for a row that
    /// the rule checks.
    std::string reasonToKeep(std::size_t row);
    /// The copy that the rule keeps of the row's group; null where none works.
    const TrackRecord* keptOf(std::size_t row);

  private:
    void evaluateGroupOf(std::size_t row);
    std::string reason(std::size_t row) const;
    std::string valuesAgainst(std::size_t other) const;

    const TrackRows& m_rows;
    MarkChoice m_choice;
    const MarkRule& m_rule;
    RowGroup m_group;    // looked at last
    GroupMarks m_marks;  // of its rows
    GroupMarks m_losers; // the same without except-one, which tells who loses from who makes way
};

} // namespace songsweep
