// SPDX-License-Identifier: MIT
#include "sample-library/SoundFolder.h"

#include "sample-library/SoundSample.h"

#include <filesystem>

namespace songsweep::sample {

namespace {

constexpr int filesOfAlbum = 10;
constexpr int albumsOfArtist = 10;

/// The song that a file has: every tenth file has that of the one before it.
int songOf(int file) { return file % filesOfAlbum == filesOfAlbum - 1 ? file - 1 : file; }

SoundSample sampleOf(int file) {
    const int song = songOf(file);
    const int album = song / filesOfAlbum;
    SoundSample sample;
    sample.kind = static_cast<SoundKind>(file % soundKinds);
    sample.seconds = 120 + song % 240;
    sample.kilobits = file % 2 == 0 ? 128 : 256;
    sample.pictures = file % 5 == 0 ? 1 : 0;
    sample.tags = {{"TITLE", "Song " + std::to_string(song)},
                   {"ARTIST", "Artist " + std::to_string(album / albumsOfArtist)},
                   {"ALBUM", "Album " + std::to_string(album)},
                   {"GENRE", "Rock"},
                   {"DATE", std::to_string(1970 + album % 50)},
                   {"TRACKNUMBER", std::to_string(song % filesOfAlbum + 1)}};
    return sample;
}

} // namespace

Result<void> makeSoundFolder(const std::string& folder, int files) {
    for (int file = 0; file < files; ++file) {
        const int album = file / filesOfAlbum;
        const std::string place =
            folder + "/Artist " + std::to_string(album / albumsOfArtist) + "/Album " + std::to_string(album);
        std::error_code error;
        std::filesystem::create_directories(place, error);
        const SoundSample sample = sampleOf(file);
        const std::string path =
            place + "/" + std::to_string(file) + "." + std::string(endingOf(sample.kind));
        if (!writeSound(path, sample)) return Error{Error::Code::inputOutput, "cannot write " + path};
    }
    return {};
}

} // namespace songsweep::sample
