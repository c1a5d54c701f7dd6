// SPDX-License-Identifier: MIT
#include "library/LibraryKeys.h"

#include "library/CaseFolding.h"
#include "platform/Ascii.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace songsweep {

namespace {

struct NamedKey {
    std::string_view name; // as iTunes writes it
    LibraryKey key;
};

/// Sample values are as libraries have them.
constexpr std::array namedKeys = {
    NamedKey{"Name", LibraryKey::name},        // Don&#39;t Stop &#38; Go
    NamedKey{"Size", LibraryKey::size},        // 7437492; 3221225472 of a film
    NamedKey{"Album", LibraryKey::album},      // ( )
    NamedKey{"Artist", LibraryKey::artist},    // Sigur Rós
    NamedKey{"Rating", LibraryKey::rating},    // 80, of 100
    NamedKey{"Tracks", LibraryKey::tracks},    // no value, a dictionary follows
    NamedKey{"Master", LibraryKey::master},    // true, of the playlist that is the library
    NamedKey{"Folder", LibraryKey::folder},    // true, of a folder of playlists
    NamedKey{"Visible", LibraryKey::visible},  // false, mostly of the library
    NamedKey{"Bit Rate", LibraryKey::bitRate}, // 256
    NamedKey{"Track ID", LibraryKey::trackId}, // 1873
    // file://localhost/Users/ann/Music/iTunes/iTunes%20Music/Bj%C3%B6rk/Homogenic/01%20Hunter.mp3
    // file://localhost/C:/Documents%20and%20Settings/ann/My%20Music/R&#38;B/track.mp3
    // file:///Volumes/Music/a.m4a (version 11.1 and later); http://radio.example.com:8000/ of a stream
    NamedKey{"Location", LibraryKey::location},
    NamedKey{"Playlists", LibraryKey::playlists},                         // no value, an array follows
    NamedKey{"Total Time", LibraryKey::totalTime},                        // 187429, in milliseconds
    NamedKey{"Play Count", LibraryKey::playCount},                        // 12
    NamedKey{"Track Type", LibraryKey::trackType},                        // File; URL; Remote
    NamedKey{"Date Added", LibraryKey::dateAdded},                        // 2009-03-14T15:09:26Z
    NamedKey{"Smart Info", LibraryKey::smartInfo},                        // data, of a smart playlist
    NamedKey{"Track Number", LibraryKey::trackNumber},                    // 7
    NamedKey{"Persistent ID", LibraryKey::persistentId},                  // 6B0F3E1C22C4A9D7
    NamedKey{"Artwork Count", LibraryKey::artworkCount},                  // 1
    NamedKey{"Playlist Items", LibraryKey::playlistItems},                // no value, an array follows
    NamedKey{"Distinguished Kind", LibraryKey::distinguishedKind},        // 4, of the music
    NamedKey{"Playlist Persistent ID", LibraryKey::playlistPersistentId}, // F2A4C9D1E87B6053
};

constexpr std::size_t slotCount = 64;
constexpr std::size_t shortestName = 4;

/// The place of a name, of at least two letters, the same in any case: the factors leave no two names in one.
constexpr std::size_t slotOf(std::string_view name) {
    const auto smallLetter = [](char c) { return static_cast<std::size_t>(c) | 0x20; };
    return (smallLetter(name[0]) + 7 * smallLetter(name[1]) + 10 * name.size()) % slotCount;
}

/// By their places, so that a text is compared with one name at most.
constexpr std::array<NamedKey, slotCount> keysBySlot = [] {
    std::array<NamedKey, slotCount> keys{};
    for (const NamedKey& named : namedKeys)
        keys[slotOf(named.name)] = named;
    return keys;
}();

static_assert(std::all_of(namedKeys.begin(), namedKeys.end(), [](const NamedKey& named) {
    return named.name.size() >= shortestName && keysBySlot[slotOf(named.name)].key == named.key;
}));

/// The same name in any case; nearly all are as iTunes writes them.
bool isName(std::string_view text, std::string_view name) {
    return text == name || (text.size() == name.size() &&
                            std::equal(text.begin(), text.end(), name.begin(),
                                       [](char a, char b) { return asciiLower(a) == asciiLower(b); }));
}

LibraryKey keyNamed(std::string_view text) {
    if (text.size() < shortestName) return LibraryKey::other;
    const NamedKey& named = keysBySlot[slotOf(text)];
    return isName(text, named.name) ? named.key : LibraryKey::other;
}

} // namespace

LibraryKey libraryKey(std::string_view text) {
    if (text.empty()) return LibraryKey::none;
    const LibraryKey key = keyNamed(text);
    if (key != LibraryKey::other || isAscii(text)) return key;
    // Some letters beyond ASCII have a small one in it: the Kelvin sign's is "k".
    return keyNamed(lowercase(text));
}

} // namespace songsweep
