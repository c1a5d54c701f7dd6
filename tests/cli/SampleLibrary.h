// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep::test {

/// A track of a library that a test writes; what is left out is left out of the file too.
struct SampleTrack {
    int id = 0;
    std::string name;
    std::string artist;
    std::string album = {};
    int milliseconds = 0;
    int bitRate = 0;
    std::string size = {};
    int rating = 0;
    int plays = 0;
    std::string added = {}; ///< "2009-03-14T15:09:26Z"
    std::string path = {};  ///< of its file, absolute
    std::string type = "File";
};

/// A master playlist has a list of items even where it is empty, as iTunes leaves it.
struct SamplePlaylist {
    std::string name;
    std::vector<int> items;
    bool master = false;
};

/// The text of a library XML file. Track 7 has the persistent ID "0000000000000007".
std::string libraryText(const std::vector<SampleTrack>& tracks, const std::vector<SamplePlaylist>& playlists);

/// One master playlist "Library" with every track.
std::string libraryText(const std::vector<SampleTrack>& tracks);

} // namespace songsweep::test
