// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/Backup.h"
#include "libraryfile/CleanupLock.h"
#include "libraryfile/LibraryIndex.h"
#include "libraryfile/LibraryReplacement.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// The writes of one clean-up of a library, from its lock to its last version.
///
/// `begin` locks the library and removes what killed programs left; `prepare` makes the backup, tries the
/// replacing and reserves the room, so that nothing begins that cannot end; each `replace` puts a new version
/// in the library's place. What is left of the room goes away, and the lock ends, with the object. Moves,
/// does not copy; one thread at a time.
class LibraryTransaction {
  public:
    static Result<LibraryTransaction> begin(const std::string& path, const CleanupLock::Request& request,
                                            Backup::Purpose purpose);

    /// Sees to it that there is a backup of this version, that it can be replaced, and that there is room for
    /// a next one of so many bytes. Does nothing where all that is known already. `busy` where the version is
    /// not the library any more.
    Result<void> prepare(const LibraryFile& file, const FileStamp& version, std::uint64_t room);

    /// Removes the backup of what never began.
    void abandon();

    /// Goes on with the backup that an earlier transaction made.
    void adoptBackup(std::optional<Backup> backup) { m_backup = std::move(backup); }
    const std::optional<Backup>& backup() const { return m_backup; }

    /// Says whether what was read back is what was to be written; `readsBackOtherwise` where it is not.
    using Check = std::function<Result<void>(const LibraryFile& written, const LibraryIndex& readBack)>;
    Error readsBackOtherwise() const;

    /// Puts the pieces in the place of the original, the version that was prepared, and gives their index as
    /// it was read back from the disk. `busy` where somebody else wrote meanwhile; after every error the
    /// library is as it was or as somebody else wrote it.
    Result<LibraryIndex> replace(const LibraryFile& original, const FileStamp& version,
                                 const std::vector<FilePiece>& pieces, const Check& check);

    /// The library's path without links.
    const std::string& library() const { return m_lock.library(); }
    /// See LibraryReplacement.
    bool isNarrowed() const { return m_replacement.isNarrowed(); }

  private:
    LibraryTransaction(CleanupLock lock, Backup::Purpose purpose)
        : m_lock(std::move(lock))
        , m_purpose(purpose)
        , m_replacement(m_lock.library()) {}

    Result<void> keepBackup(const LibraryFile& file, const FileStamp& version);
    Result<LibraryIndex> readBack(const TemporaryFile& written, const Check& check) const;

    CleanupLock m_lock; // first, so that it ends last
    Backup::Purpose m_purpose;
    LibraryReplacement m_replacement;
    std::optional<Backup> m_backup;
    std::uint64_t m_room = 0; ///< reserved bytes
};

} // namespace songsweep
