// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace songsweep::sample {

/// An invented record of the sample library.
struct SampleAlbum {
    std::string_view artist;
    std::string_view album;
    std::string_view genre;
    int year;
    std::vector<std::string_view> songs;
};

/// Names in several scripts, with accents, entities and characters that file names do not love.
std::span<const SampleAlbum> sampleAlbums();

} // namespace songsweep::sample
