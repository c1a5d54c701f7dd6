// SPDX-License-Identifier: MIT
#include "libraryfile/ItemMatch.h"

#include <algorithm>

namespace songsweep {

ItemMatch::ItemMatch(const PlaylistSlot& present)
    : m_present(present)
    , m_used(present.items.size()) {
    m_byTrack.reserve(present.items.size());
    for (std::uint32_t i = 0; i < present.items.size(); ++i)
        m_byTrack.emplace_back(present.items[i].track, i);
    if (!std::is_sorted(m_byTrack.begin(), m_byTrack.end())) std::sort(m_byTrack.begin(), m_byTrack.end());
}

const ItemSlot* ItemMatch::next(std::uint32_t presentTrack, std::uint32_t length) {
    const ItemSlot* found = nullptr;
    if (presentTrack == LibraryIndex::noTrack) {
        found = follower(length);
    } else {
        const auto first = std::lower_bound(m_byTrack.begin(), m_byTrack.end(), std::pair(presentTrack, 0U));
        const auto run = static_cast<std::size_t>(first - m_byTrack.begin());
        if (run == m_byTrack.size()) return nullptr;
        const std::size_t at = run + m_used[run];
        if (at == m_byTrack.size() || m_byTrack[at].first != presentTrack) return nullptr;
        ++m_used[run];
        found = &m_present.items[m_byTrack[at].second];
    }
    if (found != nullptr) m_last = static_cast<std::size_t>(found - m_present.items.data()) + 1;
    return found;
}

const ItemSlot* ItemMatch::follower(std::uint32_t length) const {
    if (m_last >= m_present.items.size()) return nullptr;
    const ItemSlot& item = m_present.items[m_last];
    return item.track == LibraryIndex::noTrack && item.length == length ? &item : nullptr;
}

} // namespace songsweep
