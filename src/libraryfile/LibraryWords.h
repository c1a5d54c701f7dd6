// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace songsweep {

/// The keys that the index looks at.
enum class LibraryKey : std::uint8_t {
    none,
    tracks,
    playlists,
    trackId,
    persistentId,
    name,
    playlistPersistentId,
    master,
    smartInfo,
    folder,
    visible,
    distinguishedKind,
    items
};

/// What an open element is to the library.
enum class LibraryPlace : std::uint8_t {
    plist,
    top,
    tracks,
    track,
    playlists,
    playlist,
    items,
    item,
    key,
    value
};

/// The key of that name inside an element at `place`; letter case does not count.
LibraryKey keyCalled(std::string_view name, LibraryPlace place);

/// The number that the text is, blanks around it left out; nothing for any other text.
std::optional<std::int64_t> wholeNumber(std::string_view text);

} // namespace songsweep
