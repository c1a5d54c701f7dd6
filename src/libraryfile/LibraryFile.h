// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <cstdint>
#include <string>

namespace songsweep {

/// A run of bytes of a file.
struct ByteRange {
    std::uint64_t begin = 0;
    std::uint64_t length = 0;

    std::uint64_t end() const { return begin + length; }
    bool operator==(const ByteRange&) const = default;
};

/// By what a change of a file on disk is noticed.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t modificationNanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// A library file held open for reading.
///
/// Reads go by position and share no offset, so any number of readers may use one. A file that somebody
/// renames another over stays readable as it was. Moves, does not copy.
class LibraryFile {
  public:
    /// Opens a regular file, following links. A folder, a missing file and one without permission are errors
    /// of their own.
    static Result<LibraryFile> open(const std::string& path);

    /// The stamp of what the path names now, following links.
    static Result<FileStamp> stampOf(const std::string& path);
    /// The stamp of an open file; `path` is named in an error.
    static Result<FileStamp> stampOf(int descriptor, const std::string& path);

    LibraryFile(LibraryFile&& other) noexcept;
    LibraryFile& operator=(LibraryFile&& other) noexcept;
    LibraryFile(const LibraryFile&) = delete;
    LibraryFile& operator=(const LibraryFile&) = delete;
    ~LibraryFile();

    const std::string& path() const { return m_path; }
    int descriptor() const { return m_descriptor; }

    /// The stamp of the open file as it is now.
    FileStamp stamp() const;

    /// Reads up to `size` bytes from `offset`; fewer only at the end of the file.
    Result<std::size_t> read(std::uint64_t offset, char* bytes, std::size_t size) const;

    /// The bytes of the range; an error where the file ends before it does.
    Result<std::string> read(ByteRange range) const;

  private:
    LibraryFile(std::string path, int descriptor)
        : m_path(std::move(path))
        , m_descriptor(descriptor) {}

    std::string m_path;
    int m_descriptor = -1;
};

} // namespace songsweep
