// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryFile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace songsweep {

/// Finds where the entries of a container go back to, one after the other in their old order: behind the
/// nearest one before them that is still there.
///
/// What lay between two entries, as a comment, stays when entries are taken out. Where it lies in the present
/// file as it did in the old one, an entry goes back to its place between; so that what is put back into a
/// file that nobody else has changed makes the old file, byte for byte.
class InsertionPoint {
  public:
    /// The files, and where the first entry stands, or would stand, in each.
    InsertionPoint(const LibraryFile& oldFile, std::uint64_t oldBegin, const LibraryFile& presentFile,
                   std::uint64_t presentBegin)
        : m_oldFile(oldFile)
        , m_presentFile(presentFile)
        , m_oldAt(oldBegin)
        , m_present(presentBegin) {}

    /// The next old entry is not to be put back; where it is still there, `presentEnd` is behind it.
    void pass(ByteRange old, std::optional<std::uint64_t> presentEnd);

    /// The offset in the present file to which the next old entry goes back.
    std::uint64_t placeOf(ByteRange old);

  private:
    void addGap(ByteRange old);

    const LibraryFile& m_oldFile;
    const LibraryFile& m_presentFile;
    std::uint64_t m_oldAt;
    std::uint64_t m_present; // behind the last entry that is in both
    std::string m_gap;       // what stayed of the old file since then
};

} // namespace songsweep
