// SPDX-License-Identifier: MIT
#pragma once

#include "scan/PlaylistEntries.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace songsweep {

/// Files that are gone from a folder of music, found by whatever name a playlist has for them.
///
/// A hashed look-up a name. A value.
class GoneFiles {
  public:
    /// `folder` is its path without links.
    explicit GoneFiles(std::string folder)
        : m_folder(std::move(folder)) {}

    const std::string& folder() const { return m_folder; }
    bool isEmpty() const { return m_paths.empty(); }

    /// An absolute path; of one outside the folder nothing is kept.
    void add(const std::string& path);

    /// The path of the gone file that an entry names, as it was added; nothing where the entry names none,
    /// or may as well mean a file that is still there. `playlist` is the playlist file's path below the
    /// folder. Looks at the disk only for an entry that names a gone file.
    std::optional<std::string> namedBy(const PlaylistEntry& entry, const std::string& playlist) const;

  private:
    std::string m_folder;
    std::unordered_map<std::string, std::string> m_paths; ///< by the path below the folder, accents composed
};

} // namespace songsweep
