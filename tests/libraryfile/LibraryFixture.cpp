// SPDX-License-Identifier: MIT
#include "libraryfile/LibraryFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace songsweep::test {

std::string Folder::write(const std::string& name, std::string_view bytes) const {
    const std::string path = pathOf(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::vector<std::string> Folder::names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path()))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.good()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

namespace {

std::string trackXml(const FixtureTrack& track) {
    const std::string id = std::to_string(track.id);
    std::string xml =
        "\t\t<key>" + id + "</key>\n\t\t<dict>\n\t\t\t<key>Track ID</key><integer>" + id + "</integer>\n";
    if (!track.persistentId.empty())
        xml += "\t\t\t<key>Persistent ID</key><string>" + track.persistentId + "</string>\n";
    if (!track.values.empty()) xml += "\t\t\t" + track.values + "\n";
    return xml + "\t\t</dict>\n";
}

std::string playlistXml(const FixturePlaylist& playlist) {
    std::string xml = "\t\t<dict>\n\t\t\t<key>Name</key><string>" + playlist.name + "</string>\n";
    if (!playlist.flags.empty()) xml += "\t\t\t" + playlist.flags + "\n";
    xml += "\t\t\t<key>Playlist Items</key>\n\t\t\t<array>\n";
    for (const int id : playlist.trackIds)
        xml += "\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>" + std::to_string(id) +
               "</integer>\n\t\t\t\t</dict>\n";
    return xml + "\t\t\t</array>\n\t\t</dict>\n";
}

} // namespace

std::string libraryXml(const std::vector<FixtureTrack>& tracks,
                       const std::vector<FixturePlaylist>& playlists) {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                      "<!DOCTYPE plist PUBLIC \"-//Apple Computer//DTD PLIST 1.0//EN\" "
                      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                      "<plist version=\"1.0\">\n<dict>\n\t<key>Major Version</key><integer>1</integer>\n"
                      "\t<key>Application Version</key><string>12.3.0.44</string>\n"
                      "\t<key>Tracks</key>\n\t<dict>\n";
    for (const FixtureTrack& track : tracks)
        xml += trackXml(track);
    xml += "\t</dict>\n\t<key>Playlists</key>\n\t<array>\n";
    for (const FixturePlaylist& playlist : playlists)
        xml += playlistXml(playlist);
    return xml + "\t</array>\n</dict>\n</plist>\n";
}

std::string persistentIdOf(int n) {
    char text[17];
    std::snprintf(text, sizeof text, "%016llX",
                  static_cast<unsigned long long>(n + 1) * 0x9E3779B97F4A7C15ULL);
    return text;
}

std::string manyTracks(int count) {
    std::vector<FixtureTrack> tracks;
    std::vector<int> all;
    std::vector<int> third;
    for (int n = 0; n < count; ++n) {
        const int id = 1000 + 2 * n;
        const std::string number = std::to_string(n);
        tracks.push_back({id, persistentIdOf(n),
                          "<key>Name</key><string>Song " + number +
                              " &#38; more</string>\n\t\t\t<key>Artist</key><string>Artist " +
                              std::to_string(n % 97) + "</string>\n\t\t\t<key>Size</key><integer>" +
                              std::to_string(5000000 + n) +
                              "</integer>\n\t\t\t<key>Location</key><string>file://localhost/Music/Song%20" +
                              number + ".mp3</string>"});
        all.push_back(id);
        if (n % 3 == 0) third.push_back(id);
    }
    return libraryXml(tracks,
                      {{"Library", "<key>Master</key><true/>", all},
                       {"Smart", "<key>Smart Info</key>\n\t\t\t<data>\n\t\t\tAQEAAwAA\n\t\t\t</data>", all},
                       {"Third", "", third}});
}

std::string withoutTracks(const std::string& text, const std::set<int>& ids) {
    std::string rest;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t lineEnd = text.find('\n', at) + 1;
        const std::string line = text.substr(at, lineEnd - at);
        std::size_t end = lineEnd;
        if (line.starts_with("\t\t<key>") && ids.contains(std::stoi(line.substr(7))))
            end = text.find("\n\t\t</dict>\n", at) + 11;
        const std::string item = "\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>";
        if (text.compare(at, item.size(), item) == 0 &&
            ids.contains(std::stoi(text.substr(at + item.size(), 9))))
            end = text.find("\n\t\t\t\t</dict>\n", at) + 13;
        else if (end == lineEnd)
            rest += line;
        at = end;
    }
    return rest;
}

std::vector<std::uint32_t> tracksOf(const TrackListing& listing) {
    std::vector<std::uint32_t> tracks;
    for (std::size_t place = 0; place < listing.size(); ++place)
        tracks.push_back(listing.track(place));
    return tracks;
}

std::vector<std::uint32_t> itemsOf(const TrackListing& listing) {
    std::vector<std::uint32_t> items;
    for (std::size_t place = 0; place < listing.size(); ++place)
        items.push_back(listing.item(place));
    return items;
}

} // namespace songsweep::test
