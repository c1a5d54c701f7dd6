// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace songsweep::test {

/// A disk of a few megabytes with a real file system (ext4 in a file), mounted on a folder of its own while
/// the object lives.
class SmallDisk {
  public:
    SmallDisk(const std::string& folder, std::size_t megabytes);
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk();

    /// False where this user may not mount, or the tools are missing.
    bool isMounted() const { return m_mounted; }
    const std::string& path() const { return m_path; }

    /// Leaves so many bytes free, at most; a second call gives back what the first took.
    void leaveFree(std::size_t bytes) const;

  private:
    std::string m_path;
    std::string m_image;
    bool m_mounted = false;
};

} // namespace songsweep::test
