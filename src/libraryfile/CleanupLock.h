// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <chrono>
#include <string>

namespace songsweep {

/// Keeps two programs from changing one library at once, for as long as a whole clean-up takes.
///
/// The lock is a hidden file beside the library (see TemporaryName), locked by the system while the object
/// lives, so that it ends with the program however that ends; its contents tell others who holds it. Where
/// the file system knows no locks, that the file exists is the lock, and it counts until the process that
/// made it has ended. Reading a library needs no lock. Moves, does not copy; any thread.
///
///     auto lock = CleanupLock::acquire(path, {"delete", {}});
///     if (!lock) return lock.error(); // "another Songsweep (delete, process 4711, since 12:00) …"
class CleanupLock {
  public:
    struct Request {
        std::string purpose;                  ///< what the holder does: "delete", "restore", "window"
        std::chrono::milliseconds timeout{0}; ///< how long to wait for another holder
    };

    /// Locks the library that the path leads to, by whatever links. `busy` where another holds the lock, in
    /// words that tell who.
    static Result<CleanupLock> acquire(const std::string& library, const Request& request);

    CleanupLock(CleanupLock&& other) noexcept;
    CleanupLock& operator=(CleanupLock&& other) noexcept;
    CleanupLock(const CleanupLock&) = delete;
    CleanupLock& operator=(const CleanupLock&) = delete;
    ~CleanupLock();

    /// The library's path without links.
    const std::string& library() const { return m_library; }

  private:
    CleanupLock(std::string library, std::string path, int descriptor)
        : m_library(std::move(library))
        , m_path(std::move(path))
        , m_descriptor(descriptor) {}

    std::string m_library;
    std::string m_path; ///< of the lock file
    int m_descriptor = -1;
};

} // namespace songsweep
