// SPDX-License-Identifier: MIT
#pragma once

#include "sample-library/SampleTrack.h"

#include <cstdint>
#include <string>

namespace songsweep::sample {

/// The tracks of a bulk library, each worked out from the seed and its index alone.
class BulkTracks {
  public:
    static constexpr int tracksOfAlbum = 10;
    static constexpr int albumsOfArtist = 10;
    static constexpr int tracksOfArtist = tracksOfAlbum * albumsOfArtist;

    BulkTracks(std::uint64_t seed, std::string musicFolder);

    SampleTrack track(int index) const;
    std::string artistFolder(int artist) const;

    /// Where a file lies below its artist's folder.
    static std::string albumFolder(int album);
    static std::string fileName(int number);
    /// Whether the file is among the nine of ten.
    static bool fileExists(int album, int number) { return (album + number) % 10 != 9; }

  private:
    static bool isDuplicate(int index) { return index % 10 == 5; }
    int original(int index) const;
    std::uint64_t random(int index, unsigned purpose) const;
    void describe(SampleTrack& track, int index) const;
    void measure(SampleTrack& track, int index) const;

    std::uint64_t m_seed;
    std::string m_musicFolder;
};

} // namespace songsweep::sample
