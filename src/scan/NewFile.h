// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/TemporaryFile.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// A file that is written beside its name and then takes the place of what stands there, so that at any
/// moment the old one or the new one is there, complete. Goes away unless it took its place.
///
/// Buffered; the first write that fails is told at the end. Moves, does not copy.
class NewFile {
  public:
    /// Whether the file must outlive a loss of power. Waiting for the disk may take longer than the scan.
    enum class Safety : std::uint8_t { onDisk, asItComes };

    static Result<NewFile> createFor(const std::string& path);

    void append(std::string_view bytes);
    /// Bytes of another file; an error of reading them counts as one of writing.
    void append(const LibraryFile& file, ByteRange range);

    /// The bytes appended so far.
    std::uint64_t size() const { return m_written + m_buffer.size(); }

    /// Writes what is left, sees to it that it is on the disk if it must, and gives the file its name. The
    /// stamp of the file that took the place is that of `stamp`.
    Result<void> takePlace(Safety safety = Safety::onDisk);
    const FileStamp& stamp() const { return m_stamp; }

  private:
    NewFile(std::string path, TemporaryFile file)
        : m_path(std::move(path))
        , m_file(std::move(file)) {}
    void flush();
    void write(std::string_view bytes);

    std::string m_path;
    TemporaryFile m_file;
    std::string m_buffer;
    std::uint64_t m_written = 0;
    Result<void> m_state;
    FileStamp m_stamp;
};

} // namespace songsweep
