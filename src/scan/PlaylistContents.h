// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"
#include "platform/Result.h"

#include <string>
#include <string_view>

namespace songsweep {

/// A playlist file on the disk: its bytes, and the version that they are of.
class PlaylistContents {
  public:
    /// Errors are those of reading; `invalid` for a file that is too large for a playlist.
    static Result<PlaylistContents> read(const std::string& path);

    const std::string& bytes() const { return m_bytes; }

    /// Puts a new version in its place, complete and on the disk, with the owner and the rights of the old
    /// one. `busy` where the file is not the version any more that was read.
    Result<void> replace(std::string_view bytes) const;

  private:
    PlaylistContents(LibraryFile file, const FileStamp& stamp, std::string bytes)
        : m_file(std::move(file))
        , m_stamp(stamp)
        , m_bytes(std::move(bytes)) {}

    LibraryFile m_file;
    FileStamp m_stamp;
    std::string m_bytes;
};

} // namespace songsweep
