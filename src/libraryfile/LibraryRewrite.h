// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <string>
#include <vector>

namespace songsweep {

/// The bytes that the deletions of an index take out of its file, in order, none overlapping: the entries of
/// the deleted tracks and the playlist items that refer to them, each with the white space before it. An item
/// stays where another track of the same ID stays.
std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index);

/// Whether `rewritten` is what remains of `original` after its deletions: the same tracks, playlists and
/// items in the same order.
bool isRemainderOf(const LibraryIndex& original, const LibraryIndex& rewritten);

/// A new version of a library file, complete on disk under a temporary name beside it.
///
/// Goes away with the object unless it took the library's place. The name is always the same one, so that
/// what a killed program left behind is found and removed by the next: the folder must be locked.
class RewrittenLibrary {
  public:
    /// Copies every byte of the file but the ranges, with the owner and the permissions of the original,
    /// sees to it that they are on the disk, and reads them back.
    static Result<RewrittenLibrary> write(const LibraryFile& original, const LibraryIndex& index,
                                          const std::string& path);

    /// Whether `write` could make its file: makes an empty one in the same way and removes it.
    static Result<void> tryToWrite(const LibraryFile& original, const std::string& path);

    RewrittenLibrary(RewrittenLibrary&& other) noexcept;
    RewrittenLibrary& operator=(RewrittenLibrary&&) = delete;
    RewrittenLibrary(const RewrittenLibrary&) = delete;
    RewrittenLibrary& operator=(const RewrittenLibrary&) = delete;
    ~RewrittenLibrary();

    /// Renames the file over the library and sees to it that the folder is on the disk.
    Result<void> takePlace(const std::string& path, int folderDescriptor);

    /// The index that was read back.
    LibraryIndex& index() { return m_index; }

  private:
    explicit RewrittenLibrary(std::string temporaryPath)
        : m_temporaryPath(std::move(temporaryPath)) {}

    std::string m_temporaryPath; // empty once it is gone
    LibraryIndex m_index;
};

/// Keeps the library file as it is under a name with the present date and time: a second name for the same
/// file, or a copy where the file system has no such names. Never takes the place of anything. Gives the
/// path.
Result<std::string> keepBackup(const std::string& path);

} // namespace songsweep
