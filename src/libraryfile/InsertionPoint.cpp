// SPDX-License-Identifier: MIT
#include "libraryfile/InsertionPoint.h"

namespace songsweep {

void InsertionPoint::pass(ByteRange old, std::optional<std::uint64_t> presentEnd) {
    if (presentEnd) {
        m_present = *presentEnd;
        m_gap.clear();
    } else {
        addGap(old);
    }
    m_oldAt = old.end();
}

std::uint64_t InsertionPoint::placeOf(ByteRange old) {
    addGap(old);
    m_oldAt = old.end();
    if (m_gap.empty()) return m_present;
    const auto bytes = m_presentFile.read(ByteRange{m_present, m_gap.size()});
    return bytes && bytes.value() == m_gap ? m_present + m_gap.size() : m_present;
}

void InsertionPoint::addGap(ByteRange old) {
    if (old.begin <= m_oldAt) return;
    if (const auto bytes = m_oldFile.read(ByteRange{m_oldAt, old.begin - m_oldAt})) m_gap += bytes.value();
}

} // namespace songsweep
