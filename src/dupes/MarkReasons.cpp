// SPDX-License-Identifier: MIT
#include "dupes/MarkReasons.h"

#include <algorithm>
#include <utility>

namespace songsweep {

MarkReasons::MarkReasons(DisplayedList list, const MarkChoice& choice)
    : m_list(std::move(list))
    , m_verdicts(m_list.rows, choice) {}

std::string MarkReasons::of(const TrackRecord& record) {
    const auto found = std::find(m_list.rows.begin(), m_list.rows.end(), &record);
    if (found == m_list.rows.end()) return {};
    const auto row = static_cast<std::size_t>(found - m_list.rows.begin());
    const MarkVerdict verdict = m_verdicts.of(row);
    if (record.checkbox) return verdict.checked ? verdict.reason : "marked by hand";
    return verdict.checked ? "unmarked by hand" : m_verdicts.reasonToKeep(row);
}

} // namespace songsweep
