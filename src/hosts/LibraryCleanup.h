// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/HeldFiles.h"
#include "libraryfile/CleanupLock.h"
#include "platform/Result.h"
#include "platform/Trash.h"

#include <functional>
#include <optional>
#include <string>

namespace songsweep {

class EmbeddedLibrary;
class LibraryDocument;

/// What a clean-up adds to the scripts over a library file: one lock from its beginning to its end, files
/// that wait until their tracks are written out of the library, and an end of all writing with the first that
/// fails, so that what is told as not done is never done later.
///
/// Apart from the scripts, which run texts and know no order of them. Guarded by the scripts' lock.
class LibraryCleanup {
  public:
    /// Writes what is pending.
    using Write = std::function<Result<void>(LibraryDocument&)>;

    /// Library and Trash outlive it.
    LibraryCleanup(EmbeddedLibrary& library, Trash& trash, Write write)
        : m_library(library)
        , m_trash(trash)
        , m_write(std::move(write)) {}

    /// Locks the library for a clean-up that has yet to begin, and removes what killed programs left.
    Result<void> lock(const CleanupLock::Request& request);
    /// Writes what is pending, locks the library until `finish`, makes a backup and tries the replacing. An
    /// error where that fails, so that nothing must be deleted. Takes as long as a copy of the library.
    Result<void> begin(const CleanupLock::Request& request);
    bool isOn() const { return m_isOn; }

    /// The next texts are about the track of that ID. False where a write has failed: then nothing is written
    /// any more and no further track must be begun.
    bool beginTrack(const std::string& persistentId);
    /// A text deletes the file of the track in hand.
    void holdFile(const std::string& path) { m_files.hold(path, m_track); }
    /// Writes what is pending, and moves the files whose tracks are gone.
    Result<void> write(LibraryDocument& library);
    /// Does what is left; the reason where a write of this clean-up failed. Its deletions are forgotten then.
    Result<void> finish();

    /// Whether the library has a track of that ID.
    bool hasTrack(const std::string& persistentId) const;
    /// What became of a file of the last clean-up, by its local path.
    std::optional<Result<TrashedFile>> fateOfFile(const std::string& path) const {
        return m_files.fateOf(path);
    }

  private:
    EmbeddedLibrary& m_library;
    Trash& m_trash;
    Write m_write;
    HeldFiles m_files;
    bool m_isOn = false;
    std::optional<Error> m_error; ///< of its first failed write
    std::string m_track;          ///< the persistent ID of the track in hand
};

} // namespace songsweep
