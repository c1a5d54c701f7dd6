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

/// By length. Sample values are as libraries have them.
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

static_assert(std::is_sorted(namedKeys.begin(), namedKeys.end(), [](const NamedKey& a, const NamedKey& b) {
    return a.name.size() < b.name.size();
}));

constexpr std::size_t longestName = namedKeys.back().name.size();

/// Where the names of each length begin; those of the next length end them.
constexpr std::array<std::uint8_t, longestName + 2> firstOfLength = [] {
    std::array<std::uint8_t, longestName + 2> first{};
    for (std::size_t length = 0; length < first.size(); ++length)
        while (first[length] < namedKeys.size() && namedKeys[first[length]].name.size() < length)
            ++first[length];
    return first;
}();

/// The same name, of the same length, in any case; nearly all are as iTunes writes them, or another.
bool isName(std::string_view text, std::string_view name) {
    if (asciiLower(text.front()) != asciiLower(name.front())) return false;
    return text == name || std::equal(text.begin(), text.end(), name.begin(),
                                      [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

LibraryKey keyNamed(std::string_view text) {
    if (text.size() > longestName) return LibraryKey::other;
    for (std::size_t i = firstOfLength[text.size()]; i < firstOfLength[text.size() + 1]; ++i)
        if (isName(text, namedKeys[i].name)) return namedKeys[i].key;
    return LibraryKey::other;
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
