// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkRules.h"
#include "library/Groups.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace songsweep {

/// The walk over the groups that all rules share. The compiler makes one tight loop of walk and rule.

inline constexpr std::size_t noRow = static_cast<std::size_t>(-1);

/// Asks for the memory of rows to come: the records of sorted rows lie all over the storage, so that waiting
/// for one after the other would cost several times the work itself.
template <class Rule>
class Lookahead {
  public:
    explicit Lookahead(const TrackRows& rows)
        : m_rows(rows) {}

    void advanceTo(std::size_t row) {
        for (const std::size_t end = std::min(m_rows.size(), row + records); m_nextRecord < end;
             ++m_nextRecord)
            fetch(m_rows[m_nextRecord]);
        for (const std::size_t end = std::min(m_rows.size(), row + texts); m_nextText < end; ++m_nextText)
            if (const char* const text = Rule::textOf(*m_rows[m_nextText])) __builtin_prefetch(text);
    }

  private:
    static constexpr std::size_t records = 32;
    static constexpr std::size_t texts = 16;
    static constexpr std::size_t cacheLine = 64;

    static void fetch(const TrackRecord* record) {
        const auto* const bytes = reinterpret_cast<const char*>(record);
        for (std::size_t at = 0; at < sizeof *record; at += cacheLine)
            __builtin_prefetch(bytes + at, 1);
    }

    const TrackRows& m_rows;
    std::size_t m_nextRecord = 0;
    std::size_t m_nextText = 0;
};

/// Judges one group after the other by a rule.
template <class Rule>
class GroupJudge {
  public:
    GroupJudge(const TrackRows& rows, bool exceptOne, Rule rule)
        : m_rows(rows)
        , m_exceptOne(exceptOne)
        , m_rule(rule) {}

    /// Shows the rule the records of the group.
    void look(std::size_t first, std::size_t end) {
        m_first = first;
        m_kept = m_exceptOne ? first : noRow;
        m_values.resize(end - first);
        m_rule.begin();
        bool firstLive = true;
        for (std::size_t i = first; i < end; ++i) {
            if (m_rows[i]->isdead) continue;
            if (firstLive) m_kept = i;
            firstLive = false;
            const typename Rule::Value value = m_rule.valueOf(*m_rows[i]);
            m_values[i - first] = value;
            if (m_rule.chooses(value)) m_kept = i;
        }
    }

    /// Whether the row, of the group looked at, is to be checked.
    bool checks(std::size_t row) const {
        if (m_exceptOne && row == m_kept) return false;
        return m_rows[row]->isdead || m_rule.checks(m_values[row - m_first]);
    }

    /// The kept copy, `noRow` for none.
    std::size_t kept() const { return m_kept; }

  private:
    const TrackRows& m_rows;
    bool m_exceptOne;
    Rule m_rule;
    std::size_t m_first = 0;
    std::size_t m_kept = noRow;
    std::vector<typename Rule::Value> m_values; // of the group, so that each is read once
};

/// Calls `set` with each record and whether it is to be checked.
template <class Rule, class Set>
void walkGroups(const TrackRows& rows, bool exceptOne, Rule rule, Set set) {
    GroupJudge<Rule> judge(rows, exceptOne, rule);
    Lookahead<Rule> lookahead(rows);
    for (std::size_t first = 0; first < rows.size();) {
        lookahead.advanceTo(first);
        const std::size_t end = groupEnd(rows, first);
        judge.look(first, end);
        for (std::size_t i = first; i < end; ++i)
            set(*rows[i], judge.checks(i));
        first = end;
    }
}

} // namespace songsweep
