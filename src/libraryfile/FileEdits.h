// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/FileCopy.h"

#include <cstdint>
#include <vector>

namespace songsweep {

/// Insertions into a file, and replacements of parts of it, gathered in any order.
class FileEdits {
  public:
    enum class Kind : std::uint8_t { entry, other };

    /// Puts a piece before the byte at the offset; several at one offset stand in the order of the calls.
    void insert(std::uint64_t at, FilePiece piece, Kind kind = Kind::other) {
        m_edits.push_back({at, 0, std::move(piece), kind});
    }
    void replace(ByteRange range, FilePiece piece) {
        m_edits.push_back({range.begin, range.length, std::move(piece), Kind::other});
    }

    bool isEmpty() const { return m_edits.empty(); }

    struct Outcome {
        std::vector<FilePiece> pieces;
        std::vector<ByteRange> entries; ///< where the pieces of that kind are, in order
    };
    /// The edited file; neighbouring pieces of one file are one.
    Outcome appliedTo(const LibraryFile& file);

  private:
    struct Edit {
        std::uint64_t at = 0;
        std::uint64_t removed = 0;
        FilePiece piece;
        Kind kind = Kind::other;
    };

    std::vector<Edit> m_edits;
};

} // namespace songsweep
