// SPDX-License-Identifier: MIT
#pragma once

#include "operations/NotificationCenter.h"
#include "operations/Operation.h"
#include "ui/CopyFinding.h"

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

class Files;

/// What a CopyLook found, of each copy.
struct CopyLookEvent {
    std::shared_ptr<std::vector<CopyFinding>> findings;
    const Operation* sender = nullptr;
};

/// There are no counts.
inline bool isCount(const CopyLookEvent& /*event*/) { return false; }

/// Which playlists hold some copies and which picture their files carry, on a worker thread, since a disk may
/// sleep and a library be busy; tells once, at its end, and nothing when it was cancelled.
///
/// Of a picture no more is kept than fits a panel, and none is made of more pixels than a photograph has.
class CopyLook final : public Operation {
  public:
    /// A copy by what its record says, so that the record may go meanwhile.
    struct Copy {
        std::string pid;
        std::string location;

        bool operator==(const Copy&) const = default;
    };
    /// The names of the playlists that hold the tracks of some persistent IDs; any thread.
    using PlaylistsOfTracks =
        std::function<std::vector<std::vector<std::string>>(const std::vector<std::string>& persistentIds)>;

    /// Held while the files are asked, whose map nobody changes meanwhile.
    using FilesLock = std::shared_ptr<std::mutex>;

    CopyLook(std::vector<Copy> copies, PlaylistsOfTracks playlists, const Files& files, FilesLock filesLock,
             NotificationCenter<CopyLookEvent>& center)
        : m_copies(std::move(copies))
        , m_playlists(std::move(playlists))
        , m_files(files)
        , m_filesLock(std::move(filesLock))
        , m_center(center) {}

    void main() override;

  private:
    void findPlaylists(std::vector<CopyFinding>& findings) const;
    std::optional<std::string> fileOf(const Copy& copy) const;

    std::vector<Copy> m_copies;
    PlaylistsOfTracks m_playlists;
    const Files& m_files;
    FilesLock m_filesLock;
    NotificationCenter<CopyLookEvent>& m_center;
};

} // namespace songsweep
