// SPDX-License-Identifier: MIT
#pragma once

#include "dupes/MarkChoice.h"
#include "dupes/MarkRule.h"
#include "library/Groups.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace songsweep {

/// The walk over the groups that all rules share. The compiler makes one tight loop of walk and comparison.

/// Asks for the memory of rows to come: the records of sorted rows lie all over the storage, so that waiting
/// for one after the other would cost several times the work itself.
template <class Comparison>
class Lookahead {
  public:
    explicit Lookahead(const TrackRows& rows)
        : m_rows(rows) {}

    void advanceTo(std::size_t row) {
        for (const std::size_t end = std::min(m_rows.size(), row + records); m_nextRecord < end;
             ++m_nextRecord)
            fetch(m_rows[m_nextRecord]);
        for (const std::size_t end = std::min(m_rows.size(), row + texts); m_nextText < end; ++m_nextText)
            if (const char* const text = Comparison::textOf(*m_rows[m_nextText])) __builtin_prefetch(text);
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

/// Evaluates one group after the other by a comparison.
template <class Comparison>
class GroupEvaluation {
  public:
    GroupEvaluation(const TrackRows& rows, const MarkChoice& choice)
        : m_rows(rows)
        , m_exceptOne(choice.exceptOne)
        , m_comparison(choice) {}

    /// Shows the comparison the records of the group.
    void evaluate(std::size_t first, std::size_t end) {
        m_first = first;
        m_kept = m_exceptOne ? first : noRow;
        m_values.resize(end - first);
        m_comparison.begin();
        bool firstLive = true;
        for (std::size_t i = first; i < end; ++i) {
            if (m_rows[i]->isdead) continue;
            if (firstLive) m_kept = i;
            firstLive = false;
            const typename Comparison::Value value = m_comparison.valueOf(*m_rows[i]);
            m_values[i - first] = value;
            if (m_comparison.chooses(value)) m_kept = i;
        }
    }

    /// Whether the row, of the group evaluated last, is to be checked.
    bool checks(std::size_t row) const {
        if (m_exceptOne && row == m_kept) return false;
        return m_rows[row]->isdead || m_comparison.checks(m_values[row - m_first]);
    }

    /// The kept copy, `noRow` for none.
    std::size_t kept() const { return m_kept; }

  private:
    const TrackRows& m_rows;
    bool m_exceptOne;
    Comparison m_comparison;
    std::size_t m_first = 0;
    std::size_t m_kept = noRow;
    std::vector<typename Comparison::Value> m_values; // of the group, so that each is read once
};

/// Calls `set` with each record and whether it is to be checked.
template <class Comparison, class Set>
void walkGroups(const TrackRows& rows, const MarkChoice& choice, Set set) {
    GroupEvaluation<Comparison> group(rows, choice);
    Lookahead<Comparison> lookahead(rows);
    for (std::size_t first = 0; first < rows.size();) {
        lookahead.advanceTo(first);
        const std::size_t end = groupEnd(rows, first);
        group.evaluate(first, end);
        for (std::size_t i = first; i < end; ++i)
            set(*rows[i], group.checks(i));
        first = end;
    }
}

/// The walks by a comparison, for the row of its rule.
template <class Comparison>
struct WalksBy {
    static void apply(const TrackRows& rows, const MarkChoice& choice) {
        walkGroups<Comparison>(rows, choice,
                               [](TrackRecord& record, bool checked) { record.checkbox = checked; });
    }

    static MarkEffect effect(const TrackRows& rows, const MarkChoice& choice) {
        MarkEffect effect;
        walkGroups<Comparison>(rows, choice, [&](const TrackRecord& record, bool checked) {
            effect.marked += checked ? 1 : 0;
            effect.inForce = effect.inForce && record.checkbox == checked;
        });
        return effect;
    }

    static GroupMarks evaluate(const TrackRows& rows, std::size_t first, std::size_t end,
                               const MarkChoice& choice) {
        GroupEvaluation<Comparison> group(rows, choice);
        group.evaluate(first, end);
        GroupMarks marks;
        marks.kept = group.kept();
        for (std::size_t i = first; i < end; ++i)
            marks.checked.push_back(group.checks(i));
        return marks;
    }

    static constexpr MarkWalks all = {apply, effect, evaluate};
};

} // namespace songsweep
