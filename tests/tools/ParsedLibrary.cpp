// SPDX-License-Identifier: MIT
#include "tools/ParsedLibrary.h"

#include <QUrl>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace songsweep::test {

namespace {

std::string textAt(plist_t dictionary, const char* key) {
    char* value = nullptr;
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (node != nullptr && plist_get_node_type(node) == PLIST_STRING) plist_get_string_val(node, &value);
    std::string text(value != nullptr ? value : "");
    std::free(value);
    return text;
}

int numberAt(plist_t dictionary, const char* key) {
    std::uint64_t value = 0;
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (node != nullptr && plist_get_node_type(node) == PLIST_UINT) plist_get_uint_val(node, &value);
    return static_cast<int>(value);
}

std::string pathOf(const std::string& location) {
    return QUrl(QString::fromStdString(location), QUrl::StrictMode).toLocalFile().toStdString();
}

} // namespace

ParsedLibrary ParsedLibrary::read(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    plist_t root = nullptr;
    plist_from_xml(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    ParsedLibrary library;
    if (root != nullptr) {
        library.readTracks(plist_dict_get_item(root, "Tracks"));
        library.readPlaylists(plist_dict_get_item(root, "Playlists"));
    }
    plist_free(root);
    return library;
}

void ParsedLibrary::readTracks(plist_t tracks) {
    plist_dict_iter place = nullptr;
    plist_dict_new_iter(tracks, &place);
    plist_t track = nullptr;
    for (plist_dict_next_item(tracks, place, nullptr, &track); track != nullptr;
         plist_dict_next_item(tracks, place, nullptr, &track)) {
        m_tracks.push_back({numberAt(track, "Track ID"), textAt(track, "Name"), textAt(track, "Artist"),
                            textAt(track, "Persistent ID"), textAt(track, "Track Type"),
                            pathOf(textAt(track, "Location"))});
    }
    std::free(place);
}

void ParsedLibrary::readPlaylists(plist_t playlists) {
    for (std::uint32_t index = 0; index < plist_array_get_size(playlists); ++index) {
        const plist_t playlist = plist_array_get_item(playlists, index);
        const plist_t items = plist_dict_get_item(playlist, "Playlist Items");
        m_playlists.push_back({textAt(playlist, "Name"), 0, {}});
        if (items == nullptr) continue;
        m_playlists.back().items = plist_array_get_size(items);
        for (std::uint32_t item = 0; item < plist_array_get_size(items); ++item)
            m_playlists.back().trackIds.insert(numberAt(plist_array_get_item(items, item), "Track ID"));
    }
}

} // namespace songsweep::test
