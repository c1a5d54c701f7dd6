// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <chrono>
#include <string>

namespace songsweep {

/// Keeps two programs from writing libraries of one folder at once.
///
/// An advisory lock on the folder itself, so that it leaves nothing behind, however the program ends. Where
/// the file system knows no such locks, the lock is held in name only. Moves, does not copy.
class FolderLock {
  public:
    /// Waits up to `timeout` for the lock; an error `busy` after that.
    static Result<FolderLock> acquire(const std::string& folder, std::chrono::milliseconds timeout);

    FolderLock(FolderLock&& other) noexcept;
    FolderLock& operator=(FolderLock&& other) noexcept;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    /// The open folder.
    int descriptor() const { return m_descriptor; }

  private:
    explicit FolderLock(int descriptor)
        : m_descriptor(descriptor) {}

    int m_descriptor = -1;
};

} // namespace songsweep
