// SPDX-License-Identifier: MIT
#pragma once

#include "scan/FolderWalk.h"
#include "scan/KnownFile.h"
#include "scan/MountedFolders.h"
#include "scan/SoundFacts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// A file of the folder, and the known track that it is.
struct ScanStep {
    static constexpr std::size_t none = SIZE_MAX;

    FoundFile file;
    std::size_t known = none; ///< among the plan's known tracks
};

/// Tracks whose files are gone, and may lie elsewhere in the folder now.
class VanishedTracks {
  public:
    /// The tracks stay the caller's, and outlive the object.
    void add(KnownFile& track);

    /// The track that a new file is, by its size, duration and sound; of several, first that of the same
    /// name. It has vanished no longer. Nothing where there is none.
    std::optional<KnownFile> takeMoved(const SoundFacts& facts, const std::string& path);

    /// Hands over all that are left.
    template <class Callback>
    void takeAll(Callback callback) {
        for (auto& [sound, track] : m_bySound)
            callback(*track);
        m_bySound.clear();
    }

    std::size_t count() const { return m_bySound.size(); }

  private:
    std::unordered_multimap<std::uint64_t, KnownFile*> m_bySound;
};

/// What a scan has to do: which files are read, which entries stay, and which tracks are gone.
///
/// Files and known tracks come mostly in one order, so that most are matched without a search. Linear. Does
/// not move, as its parts refer to each other.
struct ScanPlan {
    /// `mountedBefore` is what the last scan knew of other disks in the folder, whose path is `folder`.
    ScanPlan(const std::string& folder, std::vector<KnownFile> knownTracks, FolderContents contents,
             const std::vector<MountedFolder>& mountedBefore);
    ScanPlan(const ScanPlan&) = delete;
    ScanPlan& operator=(const ScanPlan&) = delete;

    std::vector<KnownFile> known;
    std::vector<ScanStep> steps;         ///< in the folder's order
    std::vector<std::size_t> toRead;     ///< steps whose files are read
    std::vector<std::size_t> outOfSight; ///< known tracks in folders to which the walk did not come
    std::vector<UnreadPath> away;        ///< disks and links with such tracks
    std::vector<MountedFolder> mounted;  ///< to be remembered
    VanishedTracks vanished;
    std::vector<FoundFile> playlists;

  private:
    void takeSteps(std::vector<FoundFile>& files);
    void takeMissing(const FolderContents& contents, const std::vector<std::string>& disksAway);

    std::vector<bool> m_isThere; ///< of the known tracks
};

} // namespace songsweep
