// SPDX-License-Identifier: MIT
#include "libraryfile/TrackPlaylists.h"

#include "libraryfile/LibraryDocument.h"

#include <unordered_map>

namespace songsweep {

namespace {

using Names = std::vector<std::vector<std::string>>;
/// The numbers of the asked IDs, by their tracks.
using Asked = std::unordered_multimap<LibraryDocument::TrackPosition, std::size_t>;

Asked askedTracks(LibraryDocument& library, const std::vector<std::string>& persistentIds) {
    Asked asked;
    for (std::size_t number = 0; number < persistentIds.size(); ++number)
        if (const auto tracks = library.tracksWithPersistentId(persistentIds[number]); tracks.size() == 1)
            asked.emplace(tracks.front(), number);
    return asked;
}

void addPlaylist(const PlaylistSlot& playlist, const Asked& asked, Names& names) {
    std::vector<bool> isNoted(names.size(), false); // a playlist may hold a track twice
    for (const ItemSlot& item : playlist.items) {
        const auto [begin, end] = asked.equal_range(item.track);
        for (auto each = begin; each != end; ++each) {
            if (isNoted[each->second]) continue;
            isNoted[each->second] = true;
            names[each->second].push_back(playlist.name);
        }
    }
}

} // namespace

Names playlistsOfTracks(LibraryDocument& library, const std::vector<std::string>& persistentIds) {
    Names names(persistentIds.size());
    const Asked asked = askedTracks(library, persistentIds);
    if (asked.empty()) return names;
    for (std::size_t number = 1; number < library.playlistCount(); ++number) {
        const PlaylistSlot& playlist = library.playlist(number);
        if (!playlist.folder && playlist.distinguishedKind == 0) addPlaylist(playlist, asked, names);
    }
    return names;
}

} // namespace songsweep
