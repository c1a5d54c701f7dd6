// SPDX-License-Identifier: MIT
#include "dupes/MarkReasons.h"

#include "library/RowParts.h"
#include "platform/Words.h"

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
    m_marked = marksOf(m_list.rows);
}

std::string MarkReasons::of(const TrackRecord& record) {
    const std::size_t row = rowOf(record);
    if (row == m_list.rows.size()) return {};
    if (!m_recordings) return ofRow(row);
    const RowGroup group = groupAt(m_list.rows, row);
    m_recordings->split(group);
    std::string reason = ofRow(row);
    m_recordings->join(group);
    return reason;
}

std::string MarkReasons::ofRow(std::size_t row) {
    const bool isMarked = m_list.rows[row]->checkbox;
    if (isMarked != (m_marked[row] != 0))
        return isMarked ? words("MarkReason", "marked by hand") : words("MarkReason", "unmarked by hand");
    if (isMarked) return m_verdicts.of(row).reason;
    if (m_recordings && groupAt(m_list.rows, row).size() == 1) return {};
    return m_verdicts.of(row).checked ? words("MarkReason", "kept: no copy of its recording would be left")
                                      : m_verdicts.reasonToKeep(row);
}

void MarkReasons::index() {
    if (!m_rowOf.empty()) return;
    m_rowOf.reserve(m_list.rows.size());
    for (std::size_t row = 0; row < m_list.rows.size(); ++row)
        m_rowOf.emplace(m_list.rows[row], row);
}

/// The number of rows for a record that is none of them.
std::size_t MarkReasons::rowOf(const TrackRecord& record) const {
    if (!m_rowOf.empty()) {
        const auto found = m_rowOf.find(&record);
        return found == m_rowOf.end() ? m_list.rows.size() : found->second;
    }
    const auto found = std::find(m_list.rows.begin(), m_list.rows.end(), &record);
    return static_cast<std::size_t>(found - m_list.rows.begin());
}

} // namespace songsweep
