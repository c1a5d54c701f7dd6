// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace songsweep::test {

/// A file system of a few kilobytes in memory, mounted on a folder of its own while the object lives.
class SmallFileSystem {
  public:
    SmallFileSystem(std::string folder, std::size_t bytes);
    SmallFileSystem(const SmallFileSystem&) = delete;
    SmallFileSystem& operator=(const SmallFileSystem&) = delete;
    ~SmallFileSystem();

    /// False where this user may not mount.
    bool mounted() const { return m_mounted; }
    bool makeReadOnly() const;

  private:
    std::string m_folder;
    bool m_mounted = false;
};

} // namespace songsweep::test
