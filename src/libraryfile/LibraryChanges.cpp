// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryChanges.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace songsweep {

namespace {

/// The only track of its persistent ID; nothing where it has none, or shares it.
std::optional<std::uint32_t> onlyTrackOf(PersistentId id, const LibraryIndex& index,
                                         const PersistentIdTable& table) {
    const auto found = table.find(index.tracks, id);
    return found.size() == 1 && id.kind == PersistentId::Kind::exact ? std::optional(found.front())
                                                                     : std::nullopt;
}

} // namespace

void LibraryChanges::set(std::uint32_t track, ValueChange change) {
    std::vector<ValueChange>& changes = m_tracks[track];
    const auto same = std::ranges::find(changes, change.key, &ValueChange::key);
    if (same == changes.end()) {
        changes.push_back(std::move(change));
    } else {
        *same = std::move(change);
    }
    ++m_count;
}

const std::vector<ValueChange>* LibraryChanges::of(std::uint32_t track) const {
    const auto found = m_tracks.find(track);
    return found == m_tracks.end() ? nullptr : &found->second;
}

void LibraryChanges::takeOut(std::uint32_t playlist, std::uint32_t item, std::size_t items) {
    OfPlaylist& changes = m_playlists[playlist];
    if (item < items) {
        changes.takenOut.insert(item);
        changes.replaced.erase(item);
    } else {
        changes.added[item - items] = LibraryIndex::noTrack;
    }
    ++m_count;
}

void LibraryChanges::add(std::uint32_t playlist, std::uint32_t track) {
    m_playlists[playlist].added.push_back(track);
    ++m_count;
}

void LibraryChanges::replace(std::uint32_t playlist, std::uint32_t item, std::size_t items,
                             std::uint32_t track) {
    OfPlaylist& changes = m_playlists[playlist];
    if (item < items) {
        changes.replaced[item] = track;
    } else {
        changes.added[item - items] = track;
    }
    ++m_count;
}

void LibraryChanges::withdraw(const std::unordered_set<std::uint32_t>& tracks, const LibraryIndex& index) {
    std::erase_if(m_tracks, [&](const auto& changes) { return tracks.contains(changes.first); });
    m_count = 0;
    for (const auto& [track, changes] : m_tracks)
        m_count += changes.size();
    for (auto& [number, changes] : m_playlists) {
        const std::vector<ItemSlot>& items = index.playlists[number].items;
        std::erase_if(changes.takenOut,
                      [&](std::uint32_t item) { return tracks.contains(items[item].track); });
        std::erase_if(changes.replaced, [&](const auto& item) { return tracks.contains(item.second); });
        for (std::uint32_t& added : changes.added)
            if (tracks.contains(added)) added = LibraryIndex::noTrack;
        m_count += changes.takenOut.size() + changes.replaced.size() + changes.added.size();
    }
}

const LibraryChanges::OfPlaylist* LibraryChanges::ofPlaylist(std::uint32_t playlist) const {
    const auto found = m_playlists.find(playlist);
    return found == m_playlists.end() ? nullptr : &found->second;
}

bool LibraryChanges::carryOver(const LibraryIndex& old, const PersistentIdTable& oldTable,
                               const LibraryIndex& fresh, const PersistentIdTable& freshTable) {
    std::map<std::uint32_t, std::vector<ValueChange>> carried;
    const auto carry = [&] {
        for (auto& [track, changes] : m_tracks) {
            const TrackSlot& slot = old.tracks[track];
            const PersistentId id{slot.persistentId, slot.persistentIdKind};
            const auto present = onlyTrackOf(id, fresh, freshTable);
            if (!present || !onlyTrackOf(id, old, oldTable)) return false;
            carried.emplace(*present, std::move(changes));
        }
        return m_playlists.empty();
    };
    const bool isCarried = !m_isBound && carry();
    m_tracks = std::move(carried);
    if (!isCarried) clear();
    return isCarried;
}

} // namespace songsweep
