// SPDX-License-Identifier: MIT
#include "libraryfile/PlaylistPlaces.h"

#include <algorithm>
#include <map>

namespace songsweep {

bool isFilledByPeople(const PlaylistSlot& playlist) {
    return !playlist.smart && !playlist.folder && !playlist.master && playlist.distinguishedKind == 0;
}

std::vector<bool> placesOf(const LibraryIndex& index) {
    std::vector<bool> places;
    places.reserve(index.playlists.size());
    for (const PlaylistSlot& playlist : index.playlists)
        places.push_back(isFilledByPeople(playlist));
    const bool hasMaster = std::ranges::any_of(index.playlists, &PlaylistSlot::master);
    if (!hasMaster && !places.empty()) places.front() = false;
    return places;
}

std::vector<PlaceFate> placeFates(const std::vector<std::uint32_t>& copies) {
    std::map<std::uint32_t, std::size_t> counts;
    std::size_t most = 0;
    for (const std::uint32_t copy : copies)
        most = std::max(most, ++counts[copy]);
    std::vector<PlaceFate> fates;
    fates.reserve(copies.size());
    for (const std::uint32_t copy : copies) {
        if (fates.size() >= most) {
            fates.push_back(PlaceFate::isGivenUp);
        } else {
            fates.push_back(copy == 0 ? PlaceFate::stays : PlaceFate::goesToKept);
        }
    }
    return fates;
}

} // namespace songsweep
