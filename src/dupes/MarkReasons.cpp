// SPDX-License-Identifier: MIT
#include "dupes/MarkReasons.h"

#include <algorithm>
#include <utility>

namespace songsweep {

MarkReasons::MarkReasons(DisplayedList list, const MarkChoice& choice, Recordings recordings)
    : m_list(std::move(list))
    , m_verdicts(m_list.rows, choice) {
    if (recordings == Recordings::compared) {
        m_recordings.emplace(m_list.rows);
        m_list.rows = m_recordings->rows();
    }
    m_marked.reserve(m_list.rows.size());
    for (const TrackRecord* const row : m_list.rows)
        m_marked.push_back(row->checkbox);
}

std::string MarkReasons::of(const TrackRecord& record) {
    const auto found = std::find(m_list.rows.begin(), m_list.rows.end(), &record);
    if (found == m_list.rows.end()) return {};
    const auto row = static_cast<std::size_t>(found - m_list.rows.begin());
    if (!m_recordings) return ofRow(row);
    const RowGroup group = groupAt(m_list.rows, row);
    m_recordings->split(group);
    std::string reason = ofRow(row);
    m_recordings->join(group);
    return reason;
}

std::string MarkReasons::ofRow(std::size_t row) {
    const bool isMarked = m_list.rows[row]->checkbox;
    if (isMarked != m_marked[row]) return isMarked ? "marked by hand" : "unmarked by hand";
    if (isMarked) return m_verdicts.of(row).reason;
    if (m_recordings && groupAt(m_list.rows, row).size() == 1) return {};
    return m_verdicts.of(row).checked ? "kept: no copy of its recording would be left"
                                      : m_verdicts.reasonToKeep(row);
}

} // namespace songsweep
