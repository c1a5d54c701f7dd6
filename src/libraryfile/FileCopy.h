// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <string>
#include <vector>

namespace songsweep {

/// A part of a new version of a file: bytes of a file, and a text behind them.
struct FilePiece {
    const LibraryFile* file = nullptr; ///< null for none
    ByteRange range;
    std::string text;
};

/// Every byte of a file but those of the ranges (in order, none overlapping).
std::vector<FilePiece> piecesWithout(const LibraryFile& file, const std::vector<ByteRange>& ranges);

/// Writes the pieces, one behind the other, over an open file from its beginning, and cuts off what it held
/// beyond them. Pieces of `original` come in their order there. As fast as copying a file: long runs are
/// copied by the system. `path` is named in an error.
Result<void> writePieces(const LibraryFile& original, const std::vector<FilePiece>& pieces, int descriptor,
                         const std::string& path);

} // namespace songsweep
