// SPDX-License-Identifier: MIT
#include "library/ListGain.h"

#include "library/ValueFormats.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr std::size_t rowsOfStep = 4096;

} // namespace

bool GainPass::step() {
    const std::size_t end = std::min(m_next + rowsOfStep, m_rows.size());
    for (; m_next < end; ++m_next) {
        const bool isFirst = m_next == 0 || m_rows[m_next]->gid != m_rows[m_next - 1]->gid;
        m_gain.songs += isFirst ? 1 : 0;
        count(*m_rows[m_next]);
    }
    return m_next == m_rows.size();
}

void GainPass::count(const TrackRecord& record) {
    ++m_gain.copies;
    if (!record.checkbox) return;
    ++m_gain.marked;
    m_gain.markedBytes += static_cast<std::uint64_t>(
        std::max<std::int64_t>(wholeNumber(std::string_view(record.size)).value_or(0), 0));
}

} // namespace songsweep
