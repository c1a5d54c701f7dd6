// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace songsweep {

/// The room that a file system has for the records of a Trash, taken record by record.
///
/// Counts for each record the blocks of its text, one inode and its entries in two folders, all rounded up:
/// rather one file too few is promised. What the system keeps for the administrator does not count.
class RecordRoom {
  public:
    /// Of the file system that the folder is on; without any room where it does not tell.
    static RecordRoom of(const std::string& folder);

    /// The longest name, in bytes, that a file can have there.
    std::uint64_t longestName() const { return m_longestName; }

    /// Leaves so much to others.
    void leave(std::uint64_t bytes) { m_bytes -= std::min(m_bytes, bytes); }

    /// Takes the room for the record of one more path; false, and nothing is taken, where it does not
    /// suffice.
    bool take(std::string_view path);

  private:
    std::uint64_t m_blockSize = 1;
    std::uint64_t m_bytes = 0;
    std::uint64_t m_inodes = 0;
    std::uint64_t m_longestName = 255;
};

} // namespace songsweep
