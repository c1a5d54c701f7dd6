// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedPlaylist.h"

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

/// Puts lines back into the playlist files that a clean-up took them out of.
///
/// A playlist that nobody has changed since gets its bytes back, one that was changed its lines, where these
/// find their places. One that is gone stays away. What the clean-up was killed over is known by the file.
class PlaylistRestoring {
  public:
    /// Of the record; `files` are the paths that are there again, or will be. Both outlive it.
    PlaylistRestoring(const std::vector<RecordedPlaylist>& playlists,
                      const std::unordered_set<std::string>& files)
        : m_playlists(playlists)
        , m_files(files) {}

    struct Outcome {
        std::size_t files = 0;          ///< that change, or did
        std::vector<std::string> notes; ///< sentences about those that cannot
    };

    /// What would come of it now. Reads the files.
    Outcome foresee() const;

    /// Each file in one step, so that it is the old one or the new one at any moment.
    Outcome carryOut() const;

  private:
    enum class Way : std::uint8_t { look, write };

    Outcome run(Way way) const;
    void restore(const RecordedPlaylist& playlist, Way way, Outcome& outcome) const;

    const std::vector<RecordedPlaylist>& m_playlists;
    const std::unordered_set<std::string>& m_files;
};

} // namespace songsweep
