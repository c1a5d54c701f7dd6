// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace songsweep {

/// A window that slides forward over a file, so that a pass over it holds a part of it only.
///
/// The caller says from which offset on it still needs the bytes; what lies before is given up when more is
/// read. The window grows where one piece is longer than it, up to a bound.
class FileWindow {
  public:
    static constexpr std::size_t usualSize = std::size_t{256} << 10;
    static constexpr std::size_t longestPiece = std::size_t{32} << 20;

    explicit FileWindow(const LibraryFile& file, std::uint64_t offset = 0)
        : m_file(file)
        , m_offset(offset)
        , m_buffer(usualSize) {}

    /// The offset of the first byte of the window in the file.
    std::uint64_t offset() const { return m_offset; }
    const char* begin() const { return m_buffer.data(); }
    const char* end() const { return m_buffer.data() + m_filled; }
    bool atEndOfFile() const { return m_atEnd; }

    /// Gives up the bytes before `keep` and reads more behind the last. False at the end of the file, on a
    /// read error, and where the piece from `keep` on has grown beyond `longestPiece`.
    bool advance(const char* keep);

    /// Why the window could not go on before the end of the file.
    const std::optional<Error>& error() const { return m_error; }

    /// The bytes of a range that begins at or behind the last one asked for; empty where they cannot be had.
    std::string_view view(ByteRange range);

  private:
    void makeRoom(std::size_t kept);

    const LibraryFile& m_file;
    std::uint64_t m_offset;
    std::vector<char> m_buffer;
    std::size_t m_filled = 0;
    bool m_atEnd = false;
    std::optional<Error> m_error;
};

} // namespace songsweep
