// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/RecordedCleanup.h"
#include "platform/Result.h"

#include <cstddef>
#include <string>
#include <vector>

namespace songsweep {

class Files;
class LibraryDocument;
class Trash;

/// What an interrupted deletion has left to do: files whose tracks the library names no more, and that lie in
/// their places though they were to go to the Trash.
struct RemainingFiles {
    /// One file, with its tracks in the record.
    struct File {
        std::string path;
        std::vector<std::size_t> tracks;
    };

    std::vector<File> files;
    /// Of each track, as it is where all these files go; and where its file lies in the Trash, as far as that
    /// is known.
    std::vector<RecordedCleanup::Track> tracks;

    /// What became of the tracks of a file.
    void settle(const File& file, const Result<TrashedFile>& fate);
};

/// Looks at the library as it is now, and at the files. A track that the library still names stays as it is,
/// with its file, and so does a file that any track of the library uses, or that is another one by now: who
/// finishes has not looked at the copies that are to stay. One look at the file system for each planned file;
/// where any is to go, one for each track of the library. Needs the library's lock, or what it finds changes.
Result<RemainingFiles> lookForRemainingFiles(const RecordedCleanup& cleanup, LibraryDocument& library,
                                             const Files& files, Trash& trash);

/// Whether the path still is the file that was planned; a link is known by its file, or by having none.
bool isAsPlanned(const std::string& path, const FileStamp& planned);

} // namespace songsweep
