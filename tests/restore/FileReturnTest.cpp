// SPDX-License-Identifier: MIT
#include "restore/FileReturn.h"

#include "libraryfile/LibraryFile.h"
#include "support/AnotherUser.h"
#include "support/RecordingTrash.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

namespace songsweep {
namespace {

namespace fs = std::filesystem;

/// A deletion of one track, whose file lies in the Trash.
class FileReturnTest : public testing::Test {
  protected:
    FileReturnTest() {
        m_cleanup.tracks.resize(1);
        track().plan.path = m_folder.path() + "/music/album/song.mp3";
        track().plan.file = LibraryFile::stampOf(m_file).value();
        track().trash = TrashedFile{m_folder.path() + "/Trash", "song.mp3"};
        fs::create_directories(m_folder.path() + "/music");
    }

    RecordedCleanup::Track& track() { return m_cleanup.tracks.front(); }
    FileReturn::Fate fate() { return lookForFiles(m_cleanup, m_trash).front().fate; }
    void allow(const std::string& name, int permissions) {
        fs::permissions(m_folder.path() + name, fs::perms(permissions));
    }

    test::TemporaryFolder m_folder;
    std::string m_file = m_folder.write("Trash/song.mp3", "sound");
    std::vector<std::string> m_calls;
    test::RecordingTrash m_trash{m_calls};
    RecordedCleanup m_cleanup;
};

TEST_F(FileReturnTest, IntoAFolderThatWouldBeMadeAnew) { EXPECT_EQ(fate(), FileReturn::Fate::comesBack); }

TEST_F(FileReturnTest, IsForeseenToFailWhereTheFolderCannotBeWrittenTo) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to become another user";
    for (const char* const folder : {"", "/Trash", "/music"})
        allow(folder, 0755);
    EXPECT_TRUE(test::holdsForAnotherUser([&] { return fate() == FileReturn::Fate::isShutOut; }));
    allow("/music", 0777);
    EXPECT_TRUE(test::holdsForAnotherUser([&] { return fate() == FileReturn::Fate::comesBack; }));
    fs::create_directories(m_folder.path() + "/music/album");
    allow("/music/album", 0555);
    EXPECT_TRUE(test::holdsForAnotherUser([&] { return fate() == FileReturn::Fate::isShutOut; }));
}

} // namespace
} // namespace songsweep
