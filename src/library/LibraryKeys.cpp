// SPDX-License-Identifier: MIT
#include "library/LibraryKeys.h"

#include "library/CaseFolding.h"

#include <algorithm>
#include <array>

namespace songsweep {

namespace {

struct NamedKey {
    std::string_view name; // lower case
    LibraryKey key;
};

/// Sample values are as libraries have them.
constexpr std::array namedKeys = {
    NamedKey{"name", LibraryKey::name},                  // Don&#39;t Stop &#38; Go
    NamedKey{"artist", LibraryKey::artist},              // Sigur Rós
    NamedKey{"album", LibraryKey::album},                // ( )
    NamedKey{"size", LibraryKey::size},                  // 7437492; 3221225472 of a film
    NamedKey{"bit rate", LibraryKey::bitRate},           // 256
    NamedKey{"track id", LibraryKey::trackId},           // 1873
    NamedKey{"total time", LibraryKey::totalTime},       // 187429, in milliseconds
    NamedKey{"persistent id", LibraryKey::persistentId}, // 6B0F3E1C22C4A9D7
    // file://localhost/Users/ann/Music/iTunes/iTunes%20Music/Bj%C3%B6rk/Homogenic/01%20Hunter.mp3
    // file://localhost/C:/Documents%20and%20Settings/ann/My%20Music/R&#38;B/track.mp3
    // file:///Volumes/Music/a.m4a (version 11.1 and later); http://radio.example.com:8000/ of a stream
    NamedKey{"location", LibraryKey::location},
    NamedKey{"rating", LibraryKey::rating},              // 80, of 100
    NamedKey{"play count", LibraryKey::playCount},       // 12
    NamedKey{"artwork count", LibraryKey::artworkCount}, // 1
    NamedKey{"track type", LibraryKey::trackType},       // File; URL; Remote
    NamedKey{"date added", LibraryKey::dateAdded},       // 2009-03-14T15:09:26Z
    NamedKey{"playlists", LibraryKey::playlists},
};

constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

LibraryKey keyOfLength(std::string_view text) {
    for (const NamedKey& named : namedKeys)
        if (named.name.size() == text.size() && std::equal(text.begin(), text.end(), named.name.begin(),
                                                           [](char a, char b) { return asciiLower(a) == b; }))
            return named.key;
    return LibraryKey::other;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

LibraryKey libraryKey(std::string_view text) {
    if (text.empty()) return LibraryKey::none;
    // Some letters beyond ASCII have a small one in it: the Kelvin sign's is "k".
    if (!isAscii(text)) return keyOfLength(lowercase(text));
    return keyOfLength(text);
}

} // namespace songsweep
