// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scan/FolderLibrary.h"
#include "scan/FolderWalk.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace songsweep {

/// How a scan is watched. Both are called on its own thread, often.
struct ScanWatch {
    std::function<bool()> isCancelled = [] { return false; };
    /// Files read, of those that are to be read.
    std::function<void(std::size_t read, std::size_t toRead)> progress = [](std::size_t, std::size_t) {};
};

/// What came of a scan.
struct ScanReport {
    enum class End : std::uint8_t { complete, cancelled };

    End end = End::complete;
    std::size_t tracks = 0;         ///< in the library now
    std::size_t added = 0;          ///< of them, those that were not known
    std::size_t changed = 0;        ///< read again
    std::size_t moved = 0;          ///< known under another path before
    std::size_t vanished = 0;       ///< taken out, as their files are gone
    std::vector<UnreadPath> unread; ///< files and folders that could not be read
};

/// Brings the library of a folder of music up to date.
///
/// New files and those whose size or time of modification changed are read, on as many threads as there are
/// cores; tracks whose files are gone are taken out, unless a new file has the same size, duration and sound,
/// which is the old track in its new place then. Nothing is written where nothing changed. Persistent IDs and
/// the dates when tracks were added stay over all scans.
///
/// What was known of a file stays where it cannot be read now. A scan that is cancelled while it reads keeps
/// what was read; before that, it is the error `cancelled`. The library is locked meanwhile; `busy` where
/// another program holds it. An error leaves the library as it was. Any thread.
Result<ScanReport> scanFolder(const FolderLibrary& place, const ScanWatch& watch);

} // namespace songsweep
