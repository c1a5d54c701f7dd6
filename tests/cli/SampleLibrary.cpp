// SPDX-License-Identifier: MIT
#include "SampleLibrary.h"

#include "platform/FileUrl.h"

#include <iomanip>
#include <sstream>

namespace songsweep::test {

namespace {

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '&')
            result += "&#38;";
        else if (character == '<')
            result += "&#60;";
        else
            result += character;
    }
    return result;
}

/// One key and its value, left out where the value is empty.
std::string entry(const std::string& key, const std::string& type, const std::string& value) {
    if (value.empty()) return {};
    return "\t\t\t<key>" + key + "</key><" + type + ">" + escaped(value) + "</" + type + ">\n";
}

std::string number(int value) { return value == 0 ? std::string() : std::to_string(value); }

std::string persistentId(int id) {
    std::ostringstream text;
    text << std::setw(16) << std::setfill('0') << std::hex << std::uppercase << id;
    return text.str();
}

std::string trackText(const SampleTrack& track) {
    const std::string id = std::to_string(track.id);
    return "\t\t<key>" + id + "</key>\n\t\t<dict>\n" + entry("Track ID", "integer", id) +
           entry("Name", "string", track.name) + entry("Artist", "string", track.artist) +
           entry("Album", "string", track.album) + entry("Size", "integer", track.size) +
           entry("Total Time", "integer", number(track.milliseconds)) +
           entry("Date Added", "date", track.added) + entry("Bit Rate", "integer", number(track.bitRate)) +
           entry("Play Count", "integer", number(track.plays)) +
           entry("Rating", "integer", number(track.rating)) +
           entry("Persistent ID", "string", persistentId(track.id)) +
           entry("Track Type", "string", track.type) +
           entry("Location", "string", track.path.empty() ? "" : fileUrl(track.path)) + "\t\t</dict>\n";
}

std::string playlistText(const SamplePlaylist& playlist) {
    std::string text = "\t\t<dict>\n" + entry("Name", "string", playlist.name);
    if (playlist.master) text += "\t\t\t<key>Master</key><true/>\n";
    if (playlist.items.empty() && !playlist.master) return text + "\t\t</dict>\n";
    text += "\t\t\t<key>Playlist Items</key>\n\t\t\t<array>\n";
    for (const int item : playlist.items)
        text += "\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>" + std::to_string(item) +
                "</integer>\n\t\t\t\t</dict>\n";
    return text + "\t\t\t</array>\n\t\t</dict>\n";
}

} // namespace

std::string libraryText(const std::vector<SampleTrack>& tracks,
                        const std::vector<SamplePlaylist>& playlists) {
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
                       "\t<key>Major Version</key><integer>1</integer>\n\t<key>Tracks</key>\n\t<dict>\n";
    for (const SampleTrack& track : tracks)
        text += trackText(track);
    text += "\t</dict>\n";
    if (!playlists.empty()) {
        text += "\t<key>Playlists</key>\n\t<array>\n";
        for (const SamplePlaylist& playlist : playlists)
            text += playlistText(playlist);
        text += "\t</array>\n";
    }
    return text + "</dict>\n</plist>\n";
}

std::string libraryText(const std::vector<SampleTrack>& tracks) {
    SamplePlaylist library{.name = "Library", .items = {}, .master = true};
    for (const SampleTrack& track : tracks)
        library.items.push_back(track.id);
    return libraryText(tracks, {library});
}

} // namespace songsweep::test
