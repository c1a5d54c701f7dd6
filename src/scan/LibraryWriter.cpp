// SPDX-License-Identifier: MIT
#include "scan/LibraryWriter.h"

#include "platform/FileUrl.h"
#include "scan/Hash64.h"
#include "scan/PlistText.h"

#include <algorithm>

namespace songsweep {

namespace {

constexpr std::string_view header = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple Computer//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
)";

constexpr std::int64_t nanoseconds = 1'000'000'000;

void addNumbers(PlistText& entry, const KnownFile& track, const SoundFacts& facts) {
    entry.number("Track ID", track.trackId);
    entry.number("Size", static_cast<std::int64_t>(facts.size));
    entry.number("Total Time", facts.duration);
    entry.number("Disc Number", facts.discNumber);
    entry.number("Disc Count", facts.discCount);
    entry.number("Track Number", facts.trackNumber);
    entry.number("Track Count", facts.trackCount);
    entry.number("Year", facts.year);
    entry.number("BPM", facts.beatsPerMinute);
    entry.date("Date Modified", facts.modificationNanoseconds / nanoseconds);
    entry.date("Date Added", track.dateAdded);
    entry.number("Bit Rate", facts.bitRate);
    entry.number("Sample Rate", facts.sampleRate);
    entry.number("Play Count", facts.playCount);
    entry.number("Rating", facts.rating);
    if (facts.compilation) entry.flag("Compilation", true);
    entry.number("Artwork Count", facts.artworkCount);
    entry.identity("Persistent ID", track.persistentId);
}

void addTexts(PlistText& entry, const SoundFacts& facts) {
    entry.string("Track Type", "File");
    entry.string("Name", facts.name);
    entry.string("Artist", facts.artist);
    entry.string("Album Artist", facts.albumArtist);
    entry.string("Composer", facts.composer);
    entry.string("Album", facts.album);
    entry.string("Genre", facts.genre);
    entry.string("Kind", facts.kind);
    entry.string("Comments", facts.comment);
}

constexpr std::string_view masterFlags = "\n\t\t\t<key>Master</key><true/>\n\t\t\t<key>Visible</key><false/>";
constexpr std::string_view musicFlags =
    "\n\t\t\t<key>Distinguished Kind</key><integer>4</integer>\n\t\t\t<key>Music</key><true/>";

} // namespace

void LibraryWriter::begin(std::int64_t now) {
    std::string text(header);
    PlistText lines(text, "\t");
    lines.number("Major Version", 1);
    lines.number("Minor Version", 1);
    lines.date("Date", now);
    lines.number("Features", 5);
    lines.flag("Show Content Ratings", true);
    lines.string("Music Folder", fileUrl(m_folder) + "/");
    lines.identity("Library Persistent ID", hash64(m_folder));
    lines.line("<key>Tracks</key>");
    text += "\t<dict>";
    m_file.append(text);
}

/// An entry begins with the white space before it and ends with its last tag, as the index of a library has
/// it, so that entries copied from any version stand in whole lines.
void LibraryWriter::track(KnownFile& track, const SoundFacts& facts) {
    std::string text = "\n\t\t<key>" + std::to_string(track.trackId) + "</key>\n\t\t<dict>\n";
    PlistText entry(text, "\t\t\t");
    addNumbers(entry, track, facts);
    addTexts(entry, facts);
    entry.string("Location", fileUrl(m_folder + "/" + track.path));
    text += "\t\t</dict>";
    track.entry = {m_file.size(), text.size()};
    m_file.append(text);
}

void LibraryWriter::keep(KnownFile& track, const LibraryFile& old) {
    const ByteRange from = track.entry;
    track.entry = {m_file.size(), from.length};
    m_file.append(old, from);
}

Result<FileStamp> LibraryWriter::finish(const std::vector<KnownFile>& tracks,
                                        const std::vector<FolderPlaylist>& playlists,
                                        NewFile::Safety safety) {
    FolderPlaylist all{"Library", hash64(m_folder + "/Library"), {}};
    for (const KnownFile& track : tracks) {
        all.trackIds.push_back(track.trackId);
        m_playlistId = std::max(m_playlistId, track.trackId);
    }
    m_file.append("\n\t</dict>\n\t<key>Playlists</key>\n\t<array>");
    playlist(all, masterFlags);
    all.name = "Music";
    all.persistentId = hash64(m_folder + "/Music");
    playlist(all, musicFlags);
    for (const FolderPlaylist& list : playlists)
        playlist(list, {});
    m_file.append("\n\t</array>\n</dict>\n</plist>\n");
    if (const Result<void> written = m_file.takePlace(safety); !written) return written.error();
    return m_file.stamp();
}

void LibraryWriter::playlist(const FolderPlaylist& playlist, std::string_view flags) {
    std::string text = "\n\t\t<dict>";
    text += flags;
    text += '\n';
    PlistText lines(text, "\t\t\t");
    lines.number("Playlist ID", ++m_playlistId);
    lines.identity("Playlist Persistent ID", playlist.persistentId);
    lines.flag("All Items", true);
    lines.string("Name", playlist.name);
    if (!playlist.trackIds.empty()) lines.line("<key>Playlist Items</key>\n\t\t\t<array>");
    m_file.append(text);
    for (const std::int64_t trackId : playlist.trackIds)
        item(trackId);
    m_file.append(playlist.trackIds.empty() ? "\t\t</dict>" : "\t\t\t</array>\n\t\t</dict>");
}

void LibraryWriter::item(std::int64_t trackId) {
    std::string text = "\t\t\t\t<dict>\n";
    PlistText(text, "\t\t\t\t\t").number("Track ID", trackId);
    m_file.append(text += "\t\t\t\t</dict>\n");
}

} // namespace songsweep
