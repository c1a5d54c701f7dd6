// SPDX-License-Identifier: MIT
#include "libraryfile/PlaylistMatch.h"

#include <functional>
#include <map>
#include <string>

namespace songsweep {

namespace {

using Key = std::function<std::string(const PlaylistSlot&)>;

/// Matches what is not matched yet, each with the first of its key.
void matchBy(const Key& key, const LibraryIndex& old, const LibraryIndex& present,
             std::vector<const PlaylistSlot*>& presentOf, std::vector<bool>& isTaken) {
    std::multimap<std::string, std::size_t> byKey;
    for (std::size_t i = 0; i < present.playlists.size(); ++i)
        if (!isTaken[i]) byKey.emplace(key(present.playlists[i]), i);
    for (std::size_t i = 0; i < old.playlists.size(); ++i) {
        const std::string wanted = key(old.playlists[i]);
        if (presentOf[i] != nullptr || wanted.empty()) continue;
        const auto found = byKey.lower_bound(wanted); // the first of them
        if (found == byKey.end() || found->first != wanted) continue;
        presentOf[i] = &present.playlists[found->second];
        isTaken[found->second] = true;
        byKey.erase(found);
    }
}

} // namespace

PlaylistMatch::PlaylistMatch(const LibraryIndex& old, const LibraryIndex& present)
    : m_presentOf(old.playlists.size()) {
    std::vector<bool> isTaken(present.playlists.size());
    matchBy([](const PlaylistSlot& list) { return list.persistentId; }, old, present, m_presentOf, isTaken);
    matchBy([](const PlaylistSlot& list) { return std::string(list.master ? "master" : ""); }, old, present,
            m_presentOf, isTaken);
    matchBy([](const PlaylistSlot& list) { return list.name; }, old, present, m_presentOf, isTaken);
}

} // namespace songsweep
