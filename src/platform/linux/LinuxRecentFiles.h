// SPDX-License-Identifier: MIT
#pragma once

#include "platform/RecentFiles.h"

namespace songsweep {

/// The list that the desktops share, "recently-used.xbel" in the user's data folder.
class LinuxRecentFiles final : public RecentFiles {
  public:
    /// `path` is that of the list; it need not exist.
    explicit LinuxRecentFiles(std::string path)
        : m_path(std::move(path)) {}
    /// The user's list.
    static std::string userList();

    std::vector<std::string> libraries() const override;
    void note(const std::string& path) override;

  private:
    std::string m_path;
};

} // namespace songsweep
