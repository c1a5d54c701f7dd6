// SPDX-License-Identifier: MIT
#include "libraryfile/TrackIds.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace songsweep {

TrackIds::TrackIds(const std::vector<TrackSlot>& tracks)
    : m_tracks(tracks)
    , m_order(tracks.size()) {
    const auto idOf = [&](std::uint32_t track) { return tracks[track].trackId; };
    std::iota(m_order.begin(), m_order.end(), 0U);
    if (!std::ranges::is_sorted(m_order, {}, idOf)) std::ranges::stable_sort(m_order, {}, idOf);
    m_repeat = std::ranges::adjacent_find(m_order, [&](std::uint32_t a, std::uint32_t b) {
                   return idOf(a) == idOf(b) && idOf(a) >= 0;
               }) != m_order.end();
    m_next = m_order.begin();
}

std::uint32_t TrackIds::find(std::int64_t id) {
    const auto idOf = [&](std::uint32_t track) { return m_tracks[track].trackId; };
    const bool isNext = m_next != m_order.end() && idOf(*m_next) == id && !m_repeat;
    const auto found = isNext ? m_next : std::ranges::lower_bound(std::as_const(m_order), id, {}, idOf);
    if (found == m_order.end() || idOf(*found) != id) return LibraryIndex::noTrack;
    m_next = found + 1;
    return *found;
}

} // namespace songsweep
