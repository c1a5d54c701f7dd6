// SPDX-License-Identifier: MIT
#include "libraryfile/DeletionMemory.h"

#include "libraryfile/FileWindow.h"

#include <algorithm>
#include <functional>

namespace songsweep {

namespace {

std::uint64_t hashOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

PersistentId idOf(const TrackSlot& track) { return {track.persistentId, track.persistentIdKind}; }

} // namespace

bool DeletionMemory::needsBytes(const LibraryIndex& index, const PersistentIdTable& table,
                                std::uint32_t track) {
    return table.find(index.tracks, idOf(index.tracks[track])).size() != 1;
}

void DeletionMemory::noteBytes(std::uint32_t track, std::string_view entry) {
    m_bytes.insert_or_assign(track, hashOf(entry));
}

std::size_t DeletionMemory::carryOver(const LibraryIndex& old, const PersistentIdTable& oldTable,
                                      const LibraryFile& freshFile, LibraryIndex& fresh,
                                      const PersistentIdTable& freshTable) {
    m_sought.clear();
    for (const auto& [track, hash] : m_bytes)
        m_sought.insert(hash);
    carryById(old, oldTable, fresh, freshTable);
    carryByBytes(freshFile, fresh);
    return static_cast<std::size_t>(std::count_if(fresh.tracks.begin(), fresh.tracks.end(),
                                                  [](const TrackSlot& track) { return track.deleted; }));
}

void DeletionMemory::carryById(const LibraryIndex& old, const PersistentIdTable& oldTable,
                               LibraryIndex& fresh, const PersistentIdTable& freshTable) {
    const auto isDeleted = [&](std::uint32_t track) { return old.tracks[track].deleted; };
    const auto all = oldTable.all();
    for (auto group = all.begin(); group != all.end();) {
        const PersistentId id = idOf(old.tracks[*group]);
        const auto end = std::find_if(group, all.end(),
                                      [&](std::uint32_t track) { return idOf(old.tracks[track]) != id; });
        if (std::all_of(group, end, isDeleted)) {
            for (const std::uint32_t track : freshTable.find(fresh.tracks, id))
                fresh.tracks[track].deleted = true;
            for (; group != end; ++group)
                if (const auto noted = m_bytes.find(*group); noted != m_bytes.end())
                    m_sought.erase(m_sought.find(noted->second));
        }
        group = end;
    }
}

void DeletionMemory::carryByBytes(const LibraryFile& freshFile, LibraryIndex& fresh) {
    std::unordered_map<std::uint32_t, std::uint64_t> carried;
    FileWindow window(freshFile);
    for (std::uint32_t i = 0; i < fresh.tracks.size() && !m_sought.empty(); ++i) {
        TrackSlot& track = fresh.tracks[i];
        if (track.deleted) continue;
        const std::uint64_t hash = hashOf(window.view(track.range()));
        const auto found = m_sought.find(hash);
        if (found == m_sought.end()) continue;
        m_sought.erase(found);
        track.deleted = true;
        carried.emplace(i, hash);
    }
    m_bytes = std::move(carried);
}

} // namespace songsweep
