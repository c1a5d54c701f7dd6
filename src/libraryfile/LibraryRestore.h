// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryTransaction.h"
#include "libraryfile/Restoration.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace songsweep {

/// Brings tracks back from a backup into a library file.
///
/// Written like a deletion: locked, with a backup of its own made first, complete and put in the library's
/// place in one step, and checked by a full parser before that. What other programs write meanwhile stays.
/// Costs the indexes of both files, two copies of the library and the check.
///
///     auto restore = LibraryRestore::begin(library, {backup, tracks}, {"the command restore"});
///     if (!restore) return restore.error();
///     auto written = restore.value().write();
class LibraryRestore {
  public:
    /// When the library is backed up before it is restored: where entries go back, or also where only files
    /// will, so that their record has a place.
    enum class OwnBackup : std::uint8_t { forEntries, always };

    struct Wanted {
        std::string backup; ///< path
        std::vector<RecordedTrack> tracks;
        OwnBackup ownBackup = OwnBackup::forEntries;
        std::vector<RecordedMerge> merges = {}; ///< taken back with their tracks, by the numbers of these
    };

    /// What becomes of each wanted track.
    struct Outcome {
        std::vector<Restoration::Fate> fates;
        std::vector<std::string> notes; ///< what does not go back as it was
        std::size_t tracks = 0;         ///< entries that go back
    };

    /// What a restore would do now; needs no lock and changes nothing.
    static Result<Outcome> foresee(const std::string& library, const Wanted& wanted);

    /// Locks the library, makes a backup of it, tries the replacing and reserves the room; nothing is
    /// restored yet. Makes no backup where there is nothing to bring back, unless one is wanted always.
    static Result<LibraryRestore> begin(const std::string& library, Wanted wanted,
                                        const CleanupLock::Request& request);

    LibraryRestore(LibraryRestore&& other) noexcept;
    ~LibraryRestore();

    /// The library's path without links.
    const std::string& library() const;
    /// The backup of the library before the restore, "" where none was made.
    std::string backup() const;
    /// The stamp of the library that it is a copy of.
    FileStamp version() const;
    bool isNarrowed() const;
    const Outcome& expected() const;

    /// Removes the backup of what is not begun.
    void abandon();

    /// Writes; the lock goes on until the object ends. An error says that nothing was restored.
    Result<Outcome> write();

  private:
    struct State;

    explicit LibraryRestore(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

} // namespace songsweep
