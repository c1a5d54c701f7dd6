// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Preferences.h"

namespace songsweep {

/// iTunes' preferences where there is no iTunes: a property list file that someone brought along, else a
/// library XML file in one of the places where iTunes and its successor keep theirs.
///
/// The domain itself is answered only where no property list file is there, so that whoever asks the domain
/// first and the file second meets the file. A few stats a call; thread-safe.
class LinuxPreferences final : public Preferences {
  public:
    struct Folders {
        std::string home;               ///< by the password database
        std::vector<std::string> music; ///< where music is kept, best first
    };
    /// The current user's folders.
    static Folders userFolders();

    explicit LinuxPreferences(Folders folders)
        : m_folders(std::move(folders)) {}

    std::optional<IAppsDomain> iAppsDomain() const override;
    std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const override;
    std::string homeFolder() const override { return m_folders.home; }

    /// The files and folders in which a library is looked for.
    std::vector<std::string> libraryPlaces() const;
    /// The library files that are there, the one that the domain names first.
    std::vector<std::string> libraries() const;

  private:
    Folders m_folders;
};

} // namespace songsweep
