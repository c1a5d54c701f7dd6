// SPDX-License-Identifier: MIT
#include "merge/CopyPlaylists.h"

#include "libraryfile/LibraryDocument.h"

#include <unordered_map>

namespace songsweep {

std::vector<std::vector<std::string>> playlistsOfCopies(LibraryDocument& library,
                                                        const std::vector<TrackRecord*>& rows) {
    struct Copy {
        std::size_t row = 0;
        std::size_t lastPlaylist = 0; ///< that was noted, so that none is noted twice
    };
    std::unordered_map<LibraryDocument::TrackPosition, Copy> copies;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (const auto tracks = library.tracksWithPersistentId(rows[row]->pid); tracks.size() == 1)
            copies.emplace(tracks.front(), Copy{row, 0});
    std::vector<std::vector<std::string>> names(rows.size());
    for (std::size_t playlist = 1; playlist < library.playlistCount(); ++playlist)
        for (const ItemSlot& item : library.playlist(playlist).items) {
            const auto copy = copies.find(item.track);
            if (copy == copies.end() || copy->second.lastPlaylist == playlist) continue;
            copy->second.lastPlaylist = playlist;
            names[copy->second.row].push_back(library.playlist(playlist).name);
        }
    return names;
}

} // namespace songsweep
