// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ParsedLibrary.h"
#include "window/WindowTest.h"

#include <sys/types.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace songsweep::test {

/// A search with results in the window, and everything that a deletion could change, as it was before.
class DeletionFixture : public WindowTest {
  protected:
    using Track = ParsedLibrary::Track;
    /// Name, artist and location, as the table shows them.
    using ShownTrack = std::array<std::string, 3>;

    /// Notes what is there, starts the program and searches.
    void begin();
    /// Deletes what is marked, without the files, and waits for the end.
    void deleteMarked();
    /// Unticks what gives the copies that stay places and plays: tests hold the library against its text.
    void keepNothing();
    /// Begins a search, which waits until the library file was written.
    void searchAgain();
    /// Waits until the log has told that so many tracks are deleted.
    void waitForOutcomes(std::size_t count);

    std::multiset<ShownTrack> shownMarks() const;
    /// The tracks that are deleted as the log has it.
    std::vector<Track> deletedTracks() const;
    static std::multiset<ShownTrack> asShown(const std::vector<Track>& tracks);

    /// The library as it must be without these tracks: every other byte as before.
    std::string libraryWithout(const std::vector<Track>& deleted) const;
    /// The paths of the files that tracks which stay do not use, by whatever path.
    std::set<std::string> filesOfNobodyElse(const std::vector<Track>& deleted) const;
    std::set<std::string> musicFiles() const;
    /// The original paths of what lies in the Trash.
    std::set<std::string> trashedFiles() const;
    /// How many files beside the library are what it was before.
    int countBackups() const;

    std::string m_before;

  private:
    using FileIdentity = std::pair<dev_t, ino_t>;
    static std::map<int, FileIdentity> filesOf(const std::vector<Track>& tracks);

    std::vector<Track> m_tracks;
    std::map<int, FileIdentity> m_files; // that were there, by track ID
};

} // namespace songsweep::test
