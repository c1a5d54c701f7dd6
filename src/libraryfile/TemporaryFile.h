// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <string>

namespace songsweep {

/// A new file beside a library under a name that nobody else uses; it goes away with the object.
///
/// The names of one library's temporary files are known by their beginning, so that what a killed program
/// left is found: see Leftovers.h. A file that is about to change places with the library says so in its
/// name, by what it is itself and what is to come out. So it is known afterwards what lies under that name,
/// and a version of the library that came out but belongs back is never taken for rubbish.
///
/// Moves, does not copy.
class TemporaryFile {
  public:
    /// An empty file that only this user may read.
    static Result<TemporaryFile> createBeside(const std::string& library);

    /// The file of an object that lies under its name now, for other contents: one that came out of an
    /// exchange, with the room that it has. An error, and the file as it was, where somebody has it open, or
    /// where it has another name, as it is not this program's alone then.
    static Result<TemporaryFile> reuse(TemporaryFile old, const std::string& library);

    TemporaryFile(TemporaryFile&& other) noexcept;
    TemporaryFile& operator=(TemporaryFile&& other) noexcept;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::string& path() const { return m_path; }
    /// Open for reading and writing.
    int descriptor() const { return m_descriptor; }
    /// The stamp of the open file as it is now, whatever its name.
    Result<FileStamp> stamp() const;

    /// Sees to it that room for so many bytes is the file's; `noSpace` where there is none. Where the file
    /// system does not know reservations, only looks whether there is room.
    Result<void> reserve(std::uint64_t bytes) const;

    /// Writes into the name that the file is to change places with a library of that stamp.
    Result<void> announceExchange(const std::string& library, const FileStamp& expected);

    /// The file stays under a name that it got meanwhile.
    void release() { m_path.clear(); }

  private:
    TemporaryFile(std::string path, int descriptor)
        : m_path(std::move(path))
        , m_descriptor(descriptor) {}

    std::string m_path; ///< empty once it is another's
    int m_descriptor = -1;
};

} // namespace songsweep
