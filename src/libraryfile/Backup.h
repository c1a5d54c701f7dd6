// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <string>

namespace songsweep {

class LibraryReplacement;

/// The library as it was before a clean-up: a complete copy under a dated name beside it.
///
/// A copy and never a second name of the same file, as a program that writes in place would change both. It
/// is made under a temporary name, with the attributes and the times of the library, and gets its dated name
/// when it is complete and on the disk; so nothing of that name ever is half a library. Before it gets the
/// name it changes places with the library and back, which shows whether the library can be replaced at all.
/// Costs a copy of the library, which some file systems make at once.
class Backup {
  public:
    enum class Purpose : std::uint8_t { deletion, restoration, change }; ///< what the name says

    /// Copies the version of that stamp, which must be the library of the replacement; `busy` where it is not
    /// any more. Leaves nothing behind on an error.
    static Result<Backup> make(LibraryReplacement& replacement, const LibraryFile& file,
                               const FileStamp& version, Purpose purpose);

    /// Whether it is of that version, or settled.
    bool isGoodFor(const FileStamp& version) const { return m_settled || m_version == version; }
    /// Makes the copy again under the same name: for a library that somebody wrote before anything was
    /// deleted from it.
    Result<void> renew(LibraryReplacement& replacement, const LibraryFile& file, const FileStamp& version);

    /// Something was written in the library's place, so that the copy stays what it is.
    void settle() { m_settled = true; }

    const std::string& path() const { return m_path; }
    /// The stamp of the library that was copied.
    const FileStamp& version() const { return m_version; }

  private:
    Backup(std::string path, const FileStamp& version)
        : m_path(std::move(path))
        , m_version(version) {}

    std::string m_path;
    FileStamp m_version;
    bool m_settled = false;
};

} // namespace songsweep
