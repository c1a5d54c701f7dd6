// SPDX-License-Identifier: MIT
#include "dupes/MarkVerdicts.h"

#include "dupes/MarkWalk.h"
#include "library/Groups.h"

#include <utility>

namespace songsweep {

MarkVerdicts::MarkVerdicts(const TrackRows& rows, MarkChoice choice)
    : m_rows(rows)
    , m_choice(std::move(choice))
    , m_rule(markRule(m_choice.markType)) {}

MarkVerdict MarkVerdicts::of(std::size_t row) {
    if (row < m_first || row >= m_end) evaluateGroupOf(row);
    if (!m_marks.checked.at(row - m_first)) return {};
    return {true, reason(row)};
}

void MarkVerdicts::evaluateGroupOf(std::size_t row) {
    m_first = row;
    while (m_first > 0 && m_rows.at(m_first - 1)->gid == m_rows.at(row)->gid)
        --m_first;
    m_end = groupEnd(m_rows, row);
    m_marks = m_rule.walks.evaluate(m_rows, m_first, m_end, m_choice);
    m_losers = m_rule.walks.evaluate(m_rows, m_first, m_end, {m_choice.markType, false, m_choice.text});
}

std::string MarkVerdicts::reason(std::size_t row) const {
    const TrackRecord& record = *m_rows.at(row);
    if (record.isdead) return "file missing";
    const TrackRecord& kept = *m_rows.at(m_marks.kept); // a group with a live track keeps one
    return m_rule.words.reason(m_rule.words,
                               {record, kept, m_choice.text, m_losers.checked.at(row - m_first)});
}

} // namespace songsweep
