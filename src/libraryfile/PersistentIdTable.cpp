// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryIndex.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

using Key = std::pair<PersistentId::Kind, std::uint64_t>;

Key keyOf(const TrackSlot& track) { return {track.persistentIdKind, track.persistentId}; }

} // namespace

void PersistentIdTable::build(const std::vector<TrackSlot>& tracks) {
    m_order.clear();
    for (std::uint32_t track = 0; track < tracks.size(); ++track)
        if (tracks[track].persistentIdKind != PersistentId::Kind::none) m_order.push_back(track);
    m_order.shrink_to_fit();
    std::sort(m_order.begin(), m_order.end(), [&](std::uint32_t a, std::uint32_t b) {
        const Key keyA = keyOf(tracks[a]);
        const Key keyB = keyOf(tracks[b]);
        return keyA != keyB ? keyA < keyB : a < b;
    });
}

std::span<const std::uint32_t> PersistentIdTable::find(const std::vector<TrackSlot>& tracks,
                                                       PersistentId id) const {
    const Key wanted(id.kind, id.value);
    const auto first = std::partition_point(
        m_order.begin(), m_order.end(), [&](std::uint32_t track) { return keyOf(tracks[track]) < wanted; });
    const auto last = std::partition_point(
        first, m_order.end(), [&](std::uint32_t track) { return keyOf(tracks[track]) == wanted; });
    return {first, last};
}

} // namespace songsweep
