// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

class Preferences;

/// What iTunes' preferences say of the library that it used last: from the user's domain, or else straight
/// from its property list in the home folder. A value.
struct RecentLibrary {
    std::string propertyList;        ///< the file that was read instead of the domain, "" for none
    bool isNamed = false;            ///< the preferences name any library
    std::optional<std::string> path; ///< the library's POSIX path; nothing where what they name is no URL
};

/// Asks the preferences; whether the file exists is not looked at. Thread-safe as they are.
RecentLibrary recentLibrary(const Preferences& preferences);

} // namespace songsweep
