// SPDX-License-Identifier: MIT
#pragma once

#include "app/MapRule.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// A few of many paths, spread evenly over all of them.
class PathSample {
  public:
    void add(std::string_view path);
    /// Some 16 to 32 of them, or all where there are fewer; in the order added.
    const std::vector<std::string>& paths() const { return m_paths; }

  private:
    std::vector<std::string> m_paths;
    std::size_t m_seen = 0;
    std::size_t m_stride = 1; ///< each of so many is kept
};

/// A rule that would find files, and how many it finds of those that were tried.
struct MapGuess {
    MapRule rule;
    int found = 0;
    int tried = 0;
};

/// Works out where files of another machine are now: "/Users/ann/Music" is "/media/music" where the path
/// "/Users/ann/Music/Abba/SOS.mp3" has its last parts in that folder.
///
/// The folder may be the music folder itself, one above it by one level, or one below it, as an artist's.
/// Nothing where no path is found in any of the folders, the best rule of all of them otherwise. Some looks
/// at the file system for each part of each path; any thread.
std::optional<MapGuess> guessMap(const std::vector<std::string>& paths,
                                 const std::vector<std::string>& folders);

} // namespace songsweep
