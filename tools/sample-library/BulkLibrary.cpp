// SPDX-License-Identifier: MIT
#include "sample-library/BulkLibrary.h"

#include "sample-library/BulkTracks.h"
#include "sample-library/LibraryWriter.h"
#include "sample-library/ToneFile.h"

#include <filesystem>

namespace songsweep::sample {

namespace {

namespace fs = std::filesystem;

/// The one folder of real files; every artist's folder is a link to it.
Result<void> makeRealFolder(const fs::path& folder, BulkFiles files) {
    for (int album = 0; album < BulkTracks::albumsOfArtist; ++album) {
        const auto albumFolder = folder / BulkTracks::albumFolder(album);
        fs::create_directories(albumFolder);
        for (int number = 0; number < BulkTracks::tracksOfAlbum; ++number) {
            if (files != BulkFiles::all && !BulkTracks::fileExists(album, number)) continue;
            const auto file = albumFolder / BulkTracks::fileName(number);
            if (!writeTone(file, 220.0 + 10 * number, {})) {
                return Error{Error::Code::inputOutput, "cannot write " + file.string()};
            }
        }
    }
    return {};
}

Result<void> makeFolders(const BulkOptions& options, const BulkTracks& tracks) {
    const fs::path real = fs::path(options.musicFolder) / "shared";
    if (const auto made = makeRealFolder(real, options.files); !made) return made.error();
    const int artists = (options.tracks + BulkTracks::tracksOfArtist - 1) / BulkTracks::tracksOfArtist;
    for (int artist = 0; artist < artists; ++artist) {
        const fs::path link = tracks.artistFolder(artist);
        if (!fs::is_symlink(link)) fs::create_directory_symlink("shared", link);
    }
    return {};
}

void writePlaylist(LibraryWriter& writer, const BulkOptions& options, const SamplePlaylist& playlist,
                   int step) {
    writer.beginPlaylist(playlist);
    for (int index = 0; index < options.tracks; index += step)
        writer.item(2 * index + 101);
    writer.endPlaylist();
}

Result<void> writeLibrary(const BulkOptions& options, const BulkTracks& tracks) {
    LibraryWriter writer(options.file);
    writer.begin(options.musicFolder);
    for (int index = 0; index < options.tracks; ++index)
        writer.track(tracks.track(index));
    writer.beginPlaylists();
    writePlaylist(writer, options, {PlaylistKind::master, "Library", 0xA1, 0, {}}, 1);
    writePlaylist(writer, options, {PlaylistKind::music, "Music", 0xA2, 0, {}}, 1);
    writePlaylist(writer, options, {PlaylistKind::smart, "Often Played", 0xA3, 0, {}}, 7);
    writePlaylist(writer, options, {PlaylistKind::user, "Road Trip", 0xA4, 0, {}}, 50);
    if (!writer.end()) return Error{Error::Code::inputOutput, "cannot write " + options.file};
    return {};
}

} // namespace

Result<void> makeBulkLibrary(const BulkOptions& options) {
    const BulkTracks tracks(options.seed, options.musicFolder);
    try {
        if (options.files != BulkFiles::none) {
            if (const auto made = makeFolders(options, tracks); !made) return made.error();
        }
    } catch (const fs::filesystem_error& error) {
        return Error{Error::Code::inputOutput, error.what()};
    }
    return writeLibrary(options, tracks);
}

} // namespace songsweep::sample
