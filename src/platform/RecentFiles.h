// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace songsweep {

/// The desktop's own list of the files that its user opened last. The program keeps none of its own, since it
/// has no settings file.
///
/// An interface with one implementation a platform. Any thread; may block where a medium sleeps.
class RecentFiles {
  public:
    RecentFiles() = default;
    RecentFiles(const RecentFiles&) = delete;
    RecentFiles& operator=(const RecentFiles&) = delete;
    virtual ~RecentFiles() = default;

    /// The library files among them that are there, newest first: those that this program opened, and others
    /// of the names that iTunes and its successor give.
    virtual std::vector<std::string> libraries() const = 0;

    /// Puts a library file in front of the list. A list that cannot be written stays as it is: it is a
    /// convenience, of which nobody wants to hear.
    virtual void note(const std::string& path) = 0;
};

/// The desktop's; null where there is none that the program knows.
std::unique_ptr<RecentFiles> nativeRecentFiles();

} // namespace songsweep
