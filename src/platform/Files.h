// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PathMap.h"

#include <cstdint>
#include <optional>
#include <string>

namespace songsweep {

/// What the file system tells of a file; follows symbolic links.
struct FileAttributes {
    enum class Kind : std::uint8_t { file, folder, other };

    Kind kind = Kind::file;
    std::int64_t modificationNanoseconds = 0; ///< since 1970-01-01 00:00:00 UTC
    std::uint64_t size = 0;                   ///< bytes
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t linkCount = 1;

    bool operator==(const FileAttributes&) const = default;
};

/// The questions that the program asks of track and library files.
///
/// Paths are POSIX paths as the library gives them, in UTF-8 or in other bytes that name a file. Each is
/// turned into a local one first: by the path map, and, where nothing exists under the name as written and it
/// is not plain ASCII, in composed and decomposed form. A class with virtual members, so that tests can
/// provoke faults. Thread-safe.
class Files {
  public:
    Files() = default;
    explicit Files(PathMap map)
        : m_map(std::move(map)) {}
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    /// From now on; while no other thread asks.
    void setMap(PathMap map) { m_map = std::move(map); }

    /// Whether anything exists at the path, after following links. Costs one stat where the name is as
    /// written.
    virtual bool exists(const char* path) const;
    bool exists(const std::string& path) const { return exists(path.c_str()); }

    /// Nothing where the path names nothing that exists.
    virtual std::optional<FileAttributes> attributes(const std::string& path) const;

    /// Whether this user may read the file there. Opens it and reads nothing.
    virtual bool isReadable(const std::string& path) const;

    /// The local name under which the file exists; the mapped name as written where it does not exist.
    virtual std::string localPath(const std::string& path) const;

  private:
    PathMap m_map;
};

} // namespace songsweep
