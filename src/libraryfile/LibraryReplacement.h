// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileCopy.h"
#include "libraryfile/TemporaryFile.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// Puts new versions of a library file in its place, one after the other.
///
/// A new version is made complete under a temporary name and then changes places with the library, so that at
/// any moment one of them is there, and so that it can be looked at what came out: a version that somebody
/// wrote since the last look goes back to its place. Where the file system knows no such exchange, the stamp
/// is compared immediately before a plain rename, and `isNarrowed` says that a write by another program in
/// that moment would be lost.
///
/// Owner, permissions, access lists and other extended attributes are the library's. The library must be
/// locked, see CleanupLock. One thread at a time.
class LibraryReplacement {
  public:
    /// `target` is the library's path without links.
    explicit LibraryReplacement(std::string target)
        : m_target(std::move(target)) {}

    const std::string& target() const { return m_target; }

    /// Reserves room for one new version of up to so many bytes; `noSpace` where there is none. The room is
    /// used by the next `write`. On a full disk it is that of the version which came out last, if nobody has
    /// that open any more, so that not even for a moment it is anybody else's.
    Result<void> reserve(std::uint64_t bytes);

    /// Makes a new version, complete and on the disk, under a temporary name; it is gone with the object.
    Result<TemporaryFile> write(const LibraryFile& original, const std::vector<FilePiece>& pieces);

    /// Changes places with the library and back, to see now whether that can be done; where the file system
    /// knows no exchange, tries a plain rename with files of its own. The copy has every byte of the library,
    /// so that nobody is harmed whatever happens. `busy` where the library is not that of the stamp.
    Result<void> tryWith(TemporaryFile& copy, const FileStamp& expected);

    /// Puts a new version in the library's place and sees to it that it is on the disk. `busy`, and the
    /// library as somebody else wrote it, where it is not that of the stamp. An error says that the new
    /// version is not in its place.
    Result<void> put(TemporaryFile& version, const FileStamp& expected);

    /// Whether the file system could only rename, and not exchange; known after `tryWith`.
    bool isNarrowed() const { return m_narrowed; }

  private:
    enum class Way : std::uint8_t { exchanged, notKnown };

    Result<TemporaryFile> newRoom(std::uint64_t bytes) const;
    Result<Way> exchange(TemporaryFile& file, const FileStamp& own, const FileStamp& expected);
    Result<void> tryRename() const;
    Result<void> renameOver(TemporaryFile& file, const FileStamp& expected);
    Result<void> giveBack(TemporaryFile& file, const FileStamp& own, const FileStamp& expected);
    void keepUnlessKnown(TemporaryFile& file, const FileStamp& own, const FileStamp& expected) const;
    bool isInPlace(const FileStamp& stamp) const;
    Error isChanged() const;

    std::string m_target;
    std::optional<TemporaryFile> m_room;
    std::optional<TemporaryFile> m_old; ///< the version that came out last
    bool m_narrowed = false;
};

/// What a user is told of a library that could not be exchanged. A sentence without its full stop.
std::string noteOfNarrowness(const std::string& library);

} // namespace songsweep
