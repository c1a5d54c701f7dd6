// SPDX-License-Identifier: MIT
#include "sample-library/DesktopLibrary.h"

#include "sample-library/LibraryWriter.h"
#include "sample-library/SampleAlbums.h"
#include "sample-library/ToneFile.h"
#include "sample-library/Variations.h"

#include <array>
#include <filesystem>
#include <optional>
#include <utility>

namespace songsweep::sample {

namespace {

namespace fs = std::filesystem;

constexpr std::array<int, 4> bitRates = {256, 192, 320, 160};

/// A name as a file may bear it everywhere.
std::string fileName(std::string_view name) {
    std::string safe(name);
    for (auto& character : safe) {
        if (std::string_view("/\\:*?\"<>|").find(character) != std::string_view::npos) character = '_';
    }
    return safe;
}

/// Gathers the tracks of the library, and makes their files as it goes.
class Maker {
  public:
    explicit Maker(const fs::path& folder)
        : m_music(folder / "Music") {}

    void addAlbums() {
        for (const auto& album : sampleAlbums())
            addAlbum(album);
    }
    void addStreams() {
        for (const auto* name : {"Harbour FM", "Night Jazz Radio"}) {
            SampleTrack stream;
            stream.name = name;
            stream.trackType = "URL";
            stream.location = "http://radio.example/" + std::to_string(m_tracks.size()) + "?a=1&b=2";
            number(stream);
        }
    }
    const std::vector<SampleTrack>& tracks() const { return m_tracks; }
    bool hasFailed() const { return m_hasFailed; }
    std::string music() const { return m_music; }

  private:
    void addAlbum(const SampleAlbum& album) {
        int trackNumber = 0;
        for (const auto song : album.songs) {
            SampleTrack track = describe(album, song, ++trackNumber);
            track.location = path(track, "");
            if (m_songs % 17 != 16) makeFile(track); // now and then a file is missing
            number(track);
            if (m_songs++ % 3 == 0) addCopy(track, "");
            if (m_songs % 15 == 1) addCopy(track, " 2"); // groups of three
        }
    }

    SampleTrack describe(const SampleAlbum& album, std::string_view song, int trackNumber) const {
        SampleTrack track;
        track.name = song;
        track.artist = album.artist;
        track.album = album.album;
        track.genre = album.genre;
        track.year = album.year;
        track.trackNumber = trackNumber;
        track.kind = m_songs % 4 == 1 ? "AIFF audio file" : "WAV audio file";
        track.totalTime = 125000 + m_songs * 7919 % 240000;
        track.bitRate = bitRates[static_cast<std::size_t>(m_songs) % bitRates.size()];
        track.size = track.totalTime * track.bitRate / 8;
        track.dateAdded = 1199145600 + std::int64_t{m_songs} * 1000003; // from 2008 on
        track.rating = m_songs % 6 * 20;
        track.playCount = m_songs * 13 % 29;
        track.artworkCount = m_songs % 2;
        return track;
    }

    void addCopy(const SampleTrack& original, std::string_view mark) {
        const auto& variation = sample::variation(m_copies++);
        SampleTrack copy = original;
        if (variation.file != CopyFile::same) copy.location = path(original, " copy" + std::string(mark));
        if (variation.file == CopyFile::own) makeFile(copy);
        if (variation.file == CopyFile::hardLink) makeLink(original.location, copy.location);
        variation.change(copy);
        number(copy);
    }

    void number(SampleTrack& track) {
        const auto count = static_cast<int>(m_tracks.size());
        track.trackId = 2 * count + 101;
        track.persistentId = 0x9E3779B97F4A7C15U * static_cast<unsigned>(count + 1);
        m_tracks.push_back(track);
    }

    std::string path(const SampleTrack& track, const std::string& mark) const {
        const auto* const ending = track.kind == "AIFF audio file" ? ".aiff" : ".wav";
        const auto number = std::to_string(100 + track.trackNumber).substr(1);
        return m_music / fileName(track.artist) / fileName(track.album) /
               (number + ' ' + fileName(track.name) + mark + ending);
    }

    void makeFile(const SampleTrack& track) {
        fs::create_directories(fs::path(track.location).parent_path());
        const double hertz = 220 + 20 * static_cast<double>(m_songs % 30);
        if (!writeTone(track.location, hertz, {track.name, track.artist, track.album})) m_hasFailed = true;
    }

    static void makeLink(const std::string& from, const std::string& to) {
        fs::remove(to);
        if (fs::exists(from)) fs::create_hard_link(from, to);
    }

    fs::path m_music;
    std::vector<SampleTrack> m_tracks;
    int m_songs = 0;
    int m_copies = 0;
    bool m_hasFailed = false;
};

/// The IDs of every track at a multiple of the step.
std::vector<int> everyOne(const std::vector<SampleTrack>& tracks, std::size_t step, std::size_t from = 0) {
    std::vector<int> items;
    for (auto index = from; index < tracks.size(); index += step)
        items.push_back(tracks[index].trackId);
    return items;
}

std::vector<SamplePlaylist> playlists(const std::vector<SampleTrack>& tracks) {
    return {
        {PlaylistKind::master, "Library", 0xC0FFEE01, 0, everyOne(tracks, 1)},
        {PlaylistKind::music, "Music", 0xC0FFEE02, 0, everyOne(tracks, 1)},
        {PlaylistKind::folder, "Moods", 0xC0FFEE03, 0, everyOne(tracks, 4)},
        {PlaylistKind::user, "Evening & Night", 0xC0FFEE04, 0xC0FFEE03, everyOne(tracks, 4)},
        {PlaylistKind::smart, "Recently Added", 0xC0FFEE05, 0, everyOne(tracks, 1, tracks.size() * 2 / 3)},
        {PlaylistKind::user, "Road Trip", 0xC0FFEE06, 0, everyOne(tracks, 3)},
        {PlaylistKind::user, "お気に入り", 0xC0FFEE07, 0, everyOne(tracks, 5)},
        {PlaylistKind::user, "Empty for Now", 0xC0FFEE08, 0, {}},
    };
}

bool writeLibrary(const std::string& file, const Maker& maker) {
    LibraryWriter writer(file);
    writer.begin(maker.music());
    for (const auto& track : maker.tracks())
        writer.track(track);
    writer.beginPlaylists();
    for (const auto& playlist : playlists(maker.tracks()))
        writer.playlist(playlist);
    return writer.end();
}

} // namespace

Result<void> makeDesktopLibrary(const std::string& folder) {
    try {
        const fs::path place = fs::absolute(folder).lexically_normal();
        Maker maker(place);
        maker.addAlbums();
        maker.addStreams();
        const auto file = place / "library.xml";
        if (maker.hasFailed() || !writeLibrary(file.string() + ".part", maker)) {
            return Error{Error::Code::inputOutput, "cannot write below " + place.string()};
        }
        fs::rename(file.string() + ".part", file);
    } catch (const fs::filesystem_error& error) {
        return Error{Error::Code::inputOutput, error.what()};
    }
    return {};
}

} // namespace songsweep::sample
