// SPDX-License-Identifier: MIT
#pragma once

#include "app/CopyLook.h"
#include "operations/OperationQueue.h"

#include <QTimer>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace songsweep {

class Log;
class MainWindow;

/// Has looked up what the panel of copies shows beyond their records, for the song that it shows.
///
/// It begins once the song stays for a moment, so that whoever walks through a list has no disk worked for
/// each row. Main thread; the look is a worker's, on a queue of its own.
class CopyActions {
  public:
    /// `files` outlives it, and `playlists` is called on the worker thread.
    CopyActions(MainWindow& window, CopyLook::PlaylistsOfTracks playlists, const Files& files, Log& log);

    /// Does what changes how files are found, while none is looked for here.
    template <class Act>
    void withoutFiles(Act act) {
        const std::lock_guard lock(*m_filesLock);
        act();
    }

  private:
    void look();
    void handle(const CopyLookEvent& event);

    MainWindow& m_window;
    CopyLook::PlaylistsOfTracks m_playlists;
    const Files& m_files;
    CopyLook::FilesLock m_filesLock = std::make_shared<std::mutex>();
    std::vector<CopyLook::Copy> m_copies;   ///< that the panel shows
    std::optional<std::uint64_t> m_awaited; ///< the serial of the worker that looks
    QTimer m_rest;
    NotificationCenter<CopyLookEvent> m_center;
    OperationQueue m_queue; ///< last: its end waits for its worker
};

} // namespace songsweep
