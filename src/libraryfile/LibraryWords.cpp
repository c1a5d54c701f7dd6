// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryWords.h"

#include "library/Trim.h"

#include <algorithm>
#include <charconv>

namespace songsweep {

namespace {

bool isCalled(std::string_view text, std::string_view lowerCaseName) {
    if (text.size() != lowerCaseName.size()) return false;
    return std::equal(text.begin(), text.end(), lowerCaseName.begin(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? static_cast<char>(a | 0x20) : a) == b;
    });
}

} // namespace

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    text = trimmed(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

LibraryKey keyCalled(std::string_view name, LibraryPlace place) {
    switch (place) {
    case LibraryPlace::top:
        if (isCalled(name, "tracks")) return LibraryKey::tracks;
        return isCalled(name, "playlists") ? LibraryKey::playlists : LibraryKey::none;
    case LibraryPlace::track:
        if (isCalled(name, "persistent id")) return LibraryKey::persistentId;
        return isCalled(name, "track id") ? LibraryKey::trackId : LibraryKey::none;
    case LibraryPlace::item:
        return isCalled(name, "track id") ? LibraryKey::trackId : LibraryKey::none;
    case LibraryPlace::playlist:
        if (isCalled(name, "name")) return LibraryKey::name;
        if (isCalled(name, "playlist persistent id")) return LibraryKey::playlistPersistentId;
        if (isCalled(name, "master")) return LibraryKey::master;
        if (isCalled(name, "smart info")) return LibraryKey::smartInfo;
        if (isCalled(name, "folder")) return LibraryKey::folder;
        if (isCalled(name, "visible")) return LibraryKey::visible;
        if (isCalled(name, "distinguished kind")) return LibraryKey::distinguishedKind;
        return isCalled(name, "playlist items") ? LibraryKey::items : LibraryKey::none;
    default:
        return LibraryKey::none;
    }
}

} // namespace songsweep
