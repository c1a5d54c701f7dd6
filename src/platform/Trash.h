// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// Where a file lies in the Trash.
struct TrashedFile {
    std::string trashFolder; ///< the folder that it lies in, "/home/ann/.local/share/Trash/files"
    std::string name;        ///< its name there, which need not be the one that it had

    std::string path() const { return trashFolder + '/' + name; }
    bool operator==(const TrashedFile&) const = default;
};

/// What was made so that a file could come back.
struct RestoredFile {
    std::vector<std::string> madeFolders; ///< those that were missing, outermost first
};

/// Foresees for one file after the other whether all of them together can go to the Trash.
///
/// Looks at folders, file systems and the Trash itself, and makes nothing. What it learns of them is kept, so
/// that a file costs one look and a folder a few; what changes later it does not see. For one thread.
class TrashCheck {
  public:
    TrashCheck() = default;
    TrashCheck(const TrashCheck&) = delete;
    TrashCheck& operator=(const TrashCheck&) = delete;
    virtual ~TrashCheck() = default;

    /// Room that somebody else will have taken on the file system of that folder.
    virtual void leaveRoom(const std::string& /*folder*/, std::uint64_t /*bytes*/) {}

    /// What will keep the file from going there after the ones that were added before: `notFound`,
    /// `notSupported` (no Trash for its file system), `noPermission`, `invalid` (a name too long) or
    /// `noSpace` (no room for its record). Such a file is not counted. Ask once for each file.
    virtual Result<void> add(const std::string& path) = 0;
};

/// The Trash: files go there, and come back.
///
///     const Result<TrashedFile> trashed = trash.moveToTrash("/Music/a.mp3");
///     if (trashed) trash.restoreFromTrash(trashed.value(), "/Music/a.mp3");
///
/// Paths are absolute local ones, any bytes but zero; of a symbolic link the link itself is meant. Never
/// deletes, never writes over anything. Apart from the rest of the desktop, as it is the one part that can
/// lose something. Calls take as long as the file system does. Thread-safe.
class Trash {
  public:
    Trash() = default;
    Trash(const Trash&) = delete;
    Trash& operator=(const Trash&) = delete;
    virtual ~Trash() = default;

    /// Moves the file there and makes sure that the Trash knows where it came from; otherwise the file is put
    /// back, and the error says so. Where the Trash refuses, the file stays and the error says why.
    virtual Result<TrashedFile> moveToTrash(const std::string& path) = 0;

    /// Moves the file from the Trash to the path that it came from; missing folders are made. The error is
    /// `notFound` only where the Trash does not hold that path's file (any more), and `alreadyExists` where
    /// something has the path. On an error everything is as it was, but that a record without its file goes.
    virtual Result<RestoredFile> restoreFromTrash(const TrashedFile& file, const std::string& path) = 0;

    /// The file of that path that went to the Trash last, but not before that time (give or take two seconds,
    /// as coarse as file systems are); nothing where there is none or the system does not tell. Reads the
    /// names of everything in the Trash.
    virtual std::optional<TrashedFile> findInTrash(const std::string& path,
                                                   std::chrono::system_clock::time_point notBefore) = 0;

    /// A check that has seen no file yet; it may outlive the Trash.
    virtual std::unique_ptr<TrashCheck> newCheck() = 0;
};

} // namespace songsweep
