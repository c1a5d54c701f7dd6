// SPDX-License-Identifier: MIT
#include "app/RowFilter.h"

#include "delete/TrackFacts.h"
#include "library/CaseFolding.h"
#include "library/Columns.h"
#include "library/Groups.h"

#include <algorithm>

namespace songsweep {

namespace {

/// A few milliseconds' worth.
constexpr std::size_t rowsOfStep = 4096;

} // namespace

FilterPass::FilterPass(const std::vector<TrackRecord*>& rows, const RowFilter& filter)
    : m_rows(rows)
    , m_kind(filter.kind)
    , m_songs(filter.songs)
    , m_wanted(foldedKey(filter.text)) {}

bool FilterPass::step() {
    const std::size_t enough = m_next + rowsOfStep;
    while (m_next < m_rows.size() && m_next < enough) {
        const std::size_t end = groupEnd(m_rows, m_next);
        const auto group = static_cast<std::size_t>(m_rows[m_next]->gid);
        if (group >= m_groups.size()) m_groups.resize(group + 1);
        m_groups[group] = matches(m_next, end);
        m_next = end;
    }
    return m_next == m_rows.size();
}

bool FilterPass::matches(std::size_t first, std::size_t end) {
    if (!isOfKind(first, end)) return false;
    if (m_wanted.empty()) return true;
    for (std::size_t row = first; row < end; ++row)
        if (hasText(*m_rows[row])) return true;
    return false;
}

bool FilterPass::isOfKind(std::size_t first, std::size_t end) const {
    const auto begin = m_rows.begin() + static_cast<std::ptrdiff_t>(first);
    const auto stop = m_rows.begin() + static_cast<std::ptrdiff_t>(end);
    switch (m_kind) {
    case RowFilter::Kind::all:
        return true;
    case RowFilter::Kind::marked:
        return std::any_of(begin, stop, [](const TrackRecord* row) { return row->checkbox; });
    case RowFilter::Kind::missing:
        return std::any_of(begin, stop, [](const TrackRecord* row) { return row->isdead; });
    case RowFilter::Kind::losingEveryCopy:
        return m_songs.empty() ? losesEveryCopy(m_rows, {first, end}) : m_songs.contains(m_rows[first]->gid);
    }
    return false;
}

bool FilterPass::hasText(const TrackRecord& record) {
    for (const Column column : allColumns) {
        const ColumnInfo& info = columnInfo(column);
        if (info.text == nullptr || column == Column::file || column == Column::hasartwork) continue;
        m_folded.clear();
        appendFoldedKey(m_folded, info.text(record, m_made));
        if (m_folded.find(m_wanted) != std::string::npos) return true;
    }
    return false;
}

} // namespace songsweep
