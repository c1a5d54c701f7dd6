// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace songsweep {

/// The keys of a library file that are looked at, by name in LibraryKeys.cpp.
enum class LibraryKey : std::uint8_t {
    none,  ///< no key was read yet, or an empty one
    other, ///< one that nobody looks at

    // Of the library
    tracks,
    playlists,

    // Of a track
    name, ///< of a playlist, too
    artist,
    album,
    size,
    bitRate,
    trackId, ///< of a playlist's item, too
    totalTime,
    persistentId,
    location,
    rating,
    playCount,
    artworkCount,
    trackType,
    dateAdded,
    trackNumber,

    // Of a playlist
    playlistPersistentId,
    master,
    smartInfo,
    folder,
    visible,
    distinguishedKind,
    playlistItems,
};

/// The key of the text of a "key" element, in any case; blanks around it count. Constant time.
LibraryKey libraryKey(std::string_view text);

} // namespace songsweep
