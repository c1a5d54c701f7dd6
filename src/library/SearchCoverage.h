// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// What the workers of a search could not do, and what files they met.
///
/// Part of the track list, which is handed from worker to worker and back by the chain of events. A value.
struct SearchCoverage {
    /// The playlist that the library file's reader took.
    enum class Playlist {
        chosen, ///< as far as the file tells, the one that was meant
        none,   ///< the file has no playlist of that name
        other,  ///< not the library, while the file marks another playlist as that
    };

    Playlist playlist = Playlist::chosen;
    int playlistTracks = 0;        ///< items of the playlist
    int leftOutTracks = 0;         ///< tracks of the file that are files, and no items of the playlist
    int unreadTracks = 0;          ///< tracks that iTunes was asked for in vain
    std::string unreadReason = {}; ///< why, of the first of them
    std::string brokenOff = {};    ///< why the reading or the grouping ended early; empty where it did not
};

} // namespace songsweep
