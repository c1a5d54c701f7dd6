// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// The one preference that the program reads of iTunes: where its library files are.
struct IAppsDomain {
    /// URLs of library XML files, latest first
    /// ("file://localhost/Users/ann/Music/iTunes/iTunes%20Music%20Library.xml").
    std::vector<std::string> iTunesRecentDatabases;
};

/// The property list of that domain, below the home folder.
inline constexpr const char* iAppsPropertyListPlace = "/Library/Preferences/com.apple.iApps.plist";

/// The user's preferences, asked by domain or by property list file. Thread-safe.
class Preferences {
  public:
    Preferences() = default;
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;
    virtual ~Preferences() = default;

    /// The domain "com.apple.iApps"; nothing where the user has none.
    virtual std::optional<IAppsDomain> iAppsDomain() const = 0;

    /// The same read from a property list file (XML or binary); nothing where it cannot be read.
    virtual std::optional<IAppsDomain> iAppsPropertyList(const std::string& path) const = 0;

    /// The user's home folder by the password database.
    virtual std::string homeFolder() const = 0;
};

} // namespace songsweep
