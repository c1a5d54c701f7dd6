// SPDX-License-Identifier: MIT
#include "dupes/MarkVerdicts.h"

#include "dupes/MarkWalk.h"
#include "platform/Words.h"

#include <utility>

namespace songsweep {

MarkVerdicts::MarkVerdicts(const TrackRows& rows, MarkChoice choice)
    : m_rows(rows)
    , m_choice(std::move(choice))
    , m_rule(markRule(m_choice.markType)) {}

MarkVerdict MarkVerdicts::of(std::size_t row) {
    if (row < m_group.first || row >= m_group.end) evaluateGroupOf(row);
    if (!m_marks.checked.at(row - m_group.first)) return {};
    return {true, reason(row)};
}

std::string MarkVerdicts::reasonToKeep(std::size_t row) {
    if (of(row).checked) return {};
    if (row != m_marks.kept) return words("MarkReason", "kept: the rule has nothing against it");
    for (std::size_t other = m_group.first; other < m_group.end; ++other)
        if (other != row && m_losers.checked.at(other - m_group.first) && !m_rows.at(other)->isdead)
            return valuesAgainst(other);
    return words("MarkReason", "kept: one copy stays");
}

const TrackRecord* MarkVerdicts::keptOf(std::size_t row) {
    (void)of(row);
    return m_marks.kept == noRow ? nullptr : m_rows.at(m_marks.kept);
}

/// Of the kept copy against another one, which loses: the values in the reason of that one change places.
std::string MarkVerdicts::valuesAgainst(std::size_t other) const {
    const TrackRecord& kept = *m_rows.at(m_marks.kept);
    const std::string swapped =
        m_rule.words.reason(m_rule.words, {kept, *m_rows.at(other), m_choice.text, true});
    const std::size_t values = swapped.rfind(": ");
    return values == std::string::npos ? words("MarkReason", "kept: the other copies go by the rule")
                                       : words("MarkReason", "kept") + swapped.substr(values);
}

void MarkVerdicts::evaluateGroupOf(std::size_t row) {
    m_group = groupAt(m_rows, row);
    m_marks = m_rule.walks.evaluate(m_rows, m_group.first, m_group.end, m_choice);
    m_losers =
        m_rule.walks.evaluate(m_rows, m_group.first, m_group.end, {m_choice.markType, false, m_choice.text});
}

std::string MarkVerdicts::reason(std::size_t row) const {
    const TrackRecord& record = *m_rows.at(row);
    if (record.isdead) return words("MarkReason", "file missing");
    const TrackRecord& kept = *m_rows.at(m_marks.kept); // a group with a live track keeps one
    return m_rule.words.reason(m_rule.words,
                               {record, kept, m_choice.text, m_losers.checked.at(row - m_group.first)});
}

} // namespace songsweep
