// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramRun.h"

#include <map>
#include <string>
#include <vector>

namespace songsweep::test {

/// A library out of which the program deletes tracks with their files.
///
/// Of each song there are three copies, of which the middle one stays; two more tracks stay as well. With one
/// song these are the tracks 1 to 5, of which 1 and 3 go.
class RecordedDeletionTest : public ProgramTest {
  protected:
    explicit RecordedDeletionTest(int songs = 1);

    static std::string fileName(int id) { return "music/" + std::to_string(id) + ".mp3"; }
    std::string inTrash(int id) const { return "home/data/Trash/files/" + std::to_string(id) + ".mp3"; }
    std::string library() const { return m_folder.read("Library.xml"); }

    /// The library and the files as they were before, and nothing else.
    void makeAnew();
    /// Deletes, and gives the name of the clean-up.
    std::string deleteTracks();
    /// The same, killed when its plan is written down and before anything is deleted.
    std::string deleteNothing();
    /// The same, killed when the library is written and before any file is moved.
    std::string deleteTracksAndNoFile();
    /// The same, killed when the file of that track is moved, and before that is recorded.
    std::string deleteTracksUpToFile(int id);
    std::string newestBackup() const;

    RunResult restore(std::vector<std::string> options);
    std::vector<std::string> restoreCommand(std::vector<std::string> options) const;
    void expectAllBack() const;
    /// Every file below the test's folder with its contents.
    std::map<std::string, std::string> tree() const;

    std::string m_whole;     ///< the library before
    std::string m_library;   ///< its path
    std::vector<int> m_gone; ///< the tracks that go

  private:
    RunResult runDeletion();
    std::string deleteAndBeKilled(const char* setting, const std::string& value);
    std::string newestCleanup() const;

    int m_trackCount;
};

} // namespace songsweep::test
