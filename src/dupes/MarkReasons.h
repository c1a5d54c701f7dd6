// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkingRules.h"

#include <cstddef>
#include <string>

namespace songsweep {

/// Why a rule checks a row, in words: "lower bit rate than the kept copy: 128 against 320".
///
/// Worked out when somebody looks, a group at a time; the group looked at last is remembered, so that asking
/// for every row in turn is linear. The rows outlive it and do not change meanwhile.
class MarkReasons {
  public:
    MarkReasons(const TrackRows& rows, MarkChoice choice)
        : m_rows(rows)
        , m_choice(std::move(choice)) {}

    /// A phrase without a capital or a full stop; empty where the rule does not check the row.
    std::string of(std::size_t row);

  private:
    struct Verdict {
        bool checked = false; ///< the rule checks the row
        bool loses = false;   ///< it would without except-one too
    };

    void lookAtGroup(std::size_t row);
    std::string reason(const TrackRecord& record, Verdict verdict) const;

    const TrackRows& m_rows;
    MarkChoice m_choice;
    std::size_t m_first = 0;
    std::size_t m_end = 0;
    std::size_t m_kept = 0;
    std::vector<Verdict> m_verdicts; // of the rows from m_first to m_end
};

} // namespace songsweep
