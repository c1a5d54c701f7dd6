// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep::sample {

/// A track as it is written into a library file. Texts are UTF-8; figures of 0 are left out, as iTunes does.
struct SampleTrack {
    int trackId = 0;
    std::int64_t size = 0;      ///< bytes
    std::int64_t totalTime = 0; ///< milliseconds
    int trackNumber = 0;
    int year = 0;
    std::int64_t dateAdded = 0; ///< seconds since 1970-01-01 00:00:00 UTC
    int bitRate = 0;            ///< kbit/s
    int sampleRate = 44100;     ///< Hz
    int playCount = 0;
    int rating = 0; ///< 0 to 100
    int artworkCount = 0;
    std::uint64_t persistentId = 0;
    std::string trackType = "File";
    std::string name;
    std::string artist;
    std::string album;
    std::string genre;
    std::string kind;
    std::string location; ///< a path; for a track that is no file, its whole URL
};

enum class PlaylistKind { master, music, folder, smart, user };

/// A playlist; its items are track IDs in order.
struct SamplePlaylist {
    PlaylistKind kind = PlaylistKind::user;
    std::string name;
    std::uint64_t persistentId = 0;
    std::uint64_t parentId = 0; ///< the folder that it is in; 0 for none
    std::vector<int> items;
};

} // namespace songsweep::sample
