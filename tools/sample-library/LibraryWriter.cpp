// SPDX-License-Identifier: MIT
#include "sample-library/LibraryWriter.h"

#include "sample-library/XmlText.h"

namespace songsweep::sample {

namespace {

constexpr std::size_t largeBuffer = 1 << 20;
constexpr std::int64_t writtenAt = 1447340400; // 2015-11-12

constexpr std::string_view header = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple Computer//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
)";

} // namespace

LibraryWriter::LibraryWriter(const std::string& path)
    : m_file(path, std::ios::binary) {
    m_buffer.reserve(largeBuffer + largeBuffer / 4);
}

void LibraryWriter::begin(std::string_view musicFolder) {
    m_buffer += header;
    m_indent = "\t";
    number("Major Version", 1);
    number("Minor Version", 1);
    date("Date", writtenAt);
    textValue("Application Version", "12.0.1.26");
    number("Features", 5);
    flag("Show Content Ratings");
    key("Music Folder");
    m_buffer += "<string>";
    appendFileUrl(m_buffer, musicFolder);
    m_buffer += "/</string>\n";
    identity("Library Persistent ID", 0x5A3C96E1D2B4870F);
    m_buffer += "\t<key>Tracks</key>\n\t<dict>\n";
}

void LibraryWriter::track(const SampleTrack& track) {
    m_buffer += "\t\t<key>";
    appendNumber(m_buffer, track.trackId);
    m_buffer += "</key>\n\t\t<dict>\n";
    m_indent = "\t\t\t";
    figures(track);
    texts(track);
    location(track);
    m_buffer += "\t\t</dict>\n";
    flushIfLarge();
}

void LibraryWriter::figures(const SampleTrack& track) {
    number("Track ID", track.trackId);
    number("Size", track.size);
    number("Total Time", track.totalTime);
    number("Track Number", track.trackNumber);
    number("Year", track.year);
    date("Date Modified", track.dateAdded + 3600);
    date("Date Added", track.dateAdded);
    number("Bit Rate", track.bitRate);
    number("Sample Rate", track.sampleRate);
    number("Play Count", track.playCount);
    if (track.playCount > 0) date("Play Date UTC", track.dateAdded + 86400);
    number("Rating", track.rating);
    number("Artwork Count", track.artworkCount);
    identity("Persistent ID", track.persistentId);
    textValue("Track Type", track.trackType);
    if (track.trackType == "File") {
        number("File Folder Count", 5);
        number("Library Folder Count", 1);
    }
}

void LibraryWriter::texts(const SampleTrack& track) {
    textValue("Name", track.name);
    textValue("Artist", track.artist);
    textValue("Album Artist", track.artist);
    textValue("Album", track.album);
    textValue("Genre", track.genre);
    textValue("Kind", track.kind);
}

void LibraryWriter::location(const SampleTrack& track) {
    if (track.location.empty()) return;
    key("Location");
    m_buffer += "<string>";
    if (track.trackType == "File") {
        appendFileUrl(m_buffer, track.location);
    } else {
        appendEscaped(m_buffer, track.location);
    }
    m_buffer += "</string>\n";
}

void LibraryWriter::beginPlaylists() {
    m_buffer += "\t</dict>\n\t<key>Playlists</key>\n\t<array>\n";
    m_playlistId = 10000000; // above every track's
}

void LibraryWriter::beginPlaylist(const SamplePlaylist& playlist) {
    m_buffer += "\t\t<dict>\n";
    m_indent = "\t\t\t";
    if (playlist.kind == PlaylistKind::master) flag("Master");
    number("Playlist ID", ++m_playlistId);
    identity("Playlist Persistent ID", playlist.persistentId);
    if (playlist.parentId != 0) identity("Parent Persistent ID", playlist.parentId);
    flags(playlist.kind);
    textValue("Name", playlist.name);
    m_hasItems = false;
}

void LibraryWriter::flags(PlaylistKind kind) {
    if (kind == PlaylistKind::music) {
        number("Distinguished Kind", 4);
        flag("Music");
    }
    flag("All Items");
    if (kind == PlaylistKind::master) flag("Visible", false);
    if (kind == PlaylistKind::folder) flag("Folder");
    if (kind != PlaylistKind::smart && kind != PlaylistKind::music) return;
    key("Smart Info");
    m_buffer += "\n\t\t\t<data>\n\t\t\tAQEAAwAAAAIAAAAZAAAAAAAAAAcAAAA=\n\t\t\t</data>\n";
    key("Smart Criteria");
    m_buffer += "\n\t\t\t<data>\n\t\t\tU0xzdAABAAEAAAACAAAAAQAAAAAAAAA=\n\t\t\t</data>\n";
}

void LibraryWriter::item(int trackId) {
    if (!m_hasItems) m_buffer += "\t\t\t<key>Playlist Items</key>\n\t\t\t<array>\n";
    m_hasItems = true;
    m_buffer += "\t\t\t\t<dict>\n\t\t\t\t\t<key>Track ID</key><integer>";
    appendNumber(m_buffer, trackId);
    m_buffer += "</integer>\n\t\t\t\t</dict>\n";
    flushIfLarge();
}

void LibraryWriter::endPlaylist() {
    if (m_hasItems) m_buffer += "\t\t\t</array>\n";
    m_buffer += "\t\t</dict>\n";
}

void LibraryWriter::playlist(const SamplePlaylist& playlist) {
    beginPlaylist(playlist);
    for (const int trackId : playlist.items)
        item(trackId);
    endPlaylist();
}

bool LibraryWriter::end() {
    m_buffer += "\t</array>\n</dict>\n</plist>\n";
    m_file.write(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    m_buffer.clear();
    m_file.close();
    return m_file.good();
}

void LibraryWriter::key(std::string_view name) {
    m_buffer += m_indent;
    m_buffer += "<key>";
    m_buffer += name;
    m_buffer += "</key>";
}

void LibraryWriter::number(std::string_view name, std::int64_t value) {
    if (value == 0) return;
    key(name);
    m_buffer += "<integer>";
    appendNumber(m_buffer, value);
    m_buffer += "</integer>\n";
}

void LibraryWriter::date(std::string_view name, std::int64_t secondsSince1970) {
    key(name);
    m_buffer += "<date>";
    appendDate(m_buffer, secondsSince1970);
    m_buffer += "</date>\n";
}

void LibraryWriter::identity(std::string_view name, std::uint64_t value) {
    key(name);
    m_buffer += "<string>";
    appendHex(m_buffer, value);
    m_buffer += "</string>\n";
}

void LibraryWriter::textValue(std::string_view name, std::string_view value) {
    if (value.empty()) return;
    key(name);
    m_buffer += "<string>";
    appendEscaped(m_buffer, value);
    m_buffer += "</string>\n";
}

void LibraryWriter::flag(std::string_view name, bool value) {
    key(name);
    m_buffer += value ? "<true/>\n" : "<false/>\n";
}

void LibraryWriter::flushIfLarge() {
    if (m_buffer.size() < largeBuffer) return;
    m_file.write(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size()));
    m_buffer.clear();
}

} // namespace songsweep::sample
