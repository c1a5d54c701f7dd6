// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

/// The keys of a library file that are looked at, by name in LibraryKeys.cpp.
enum class LibraryKey {
    none,  ///< no key was read yet, or an empty one
    other, ///< one that nobody looks at
    name,
    artist,
    album,
    size,
    bitRate,
    trackId,
    totalTime,
    persistentId,
    location,
    rating,
    playCount,
    artworkCount,
    trackType,
    dateAdded,
    playlists,
};

/// The key of the text of a "key" element, in any case; blanks around it count. Constant time.
LibraryKey libraryKey(std::string_view text);

} // namespace songsweep
