// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>
#include <utility>
#include <vector>

namespace songsweep {

/// Folders made for something that may fail yet: unless they are kept, they go again with this object, as far
/// as they are empty.
class MadeFolders {
  public:
    MadeFolders() = default;
    MadeFolders(const MadeFolders&) = delete;
    MadeFolders& operator=(const MadeFolders&) = delete;
    ~MadeFolders();

    /// Makes what is missing of the folder, an absolute path, with the rights that the user's new folders
    /// get.
    Result<void> make(const std::string& folder);

    /// They stay; outermost first.
    std::vector<std::string> keep() { return std::exchange(m_folders, {}); }

  private:
    std::vector<std::string> m_folders;
};

} // namespace songsweep
