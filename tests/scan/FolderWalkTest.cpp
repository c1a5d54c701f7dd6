// SPDX-License-Identifier: MIT
#include "scan/FolderWalk.h"

#include "support/AnotherUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;
using Paths = std::vector<std::string>;

class FolderWalkTest : public ::testing::Test {
  protected:
    FolderContents walk() {
        Result<FolderContents> contents = walkFolder(root(), [] { return false; });
        EXPECT_TRUE(contents);
        return contents ? std::move(contents).value() : FolderContents();
    }
    Paths tracks() {
        Paths paths;
        for (const FoundFile& file : walk().tracks)
            paths.push_back(file.path);
        return paths;
    }
    std::string root() const { return m_folder.path() + "/music"; }
    void write(const std::string& name) { m_folder.write("music/" + name, "x"); }
    void link(const std::string& target, const std::string& name) {
        fs::create_directories(fs::path(root() + "/" + name).parent_path());
        fs::create_symlink(target, root() + "/" + name);
    }

    TemporaryFolder m_folder;
};

TEST_F(FolderWalkTest, FindsSoundAndPlaylistsByTheirEndings) {
    for (const char* const name :
         {"b.mp3", "a/z.FLAC", "a/b/c.Opus", "cover.jpg", "mp3", "list.m3u8", "x.xspf"})
        write(name);
    EXPECT_EQ(tracks(), (Paths{"b.mp3", "a/z.FLAC", "a/b/c.Opus"}));
    const FolderContents contents = walk();
    ASSERT_EQ(contents.playlists.size(), 2U);
    EXPECT_EQ(contents.playlists[0].path, "list.m3u8");
    EXPECT_EQ(contents.tracks[0].size, 1U);
}

TEST_F(FolderWalkTest, LeavesOutHiddenFilesAndTrashFolders) {
    for (const char* const name :
         {".a.mp3", "._b.mp3", ".Trash-1000/files/c.mp3", "$RECYCLE.BIN/d.mp3", "$Recycle.Bin/S-1/d.mp3",
          "#recycle/e.mp3", "lost+found/f.mp3", "Network Trash Folder/h.mp3", "g.mp3"})
        write(name);
    EXPECT_EQ(tracks(), Paths{"g.mp3"});
}

TEST_F(FolderWalkTest, TakesALinkToAFileOfTheFolderForNoTrack) {
    write("a.mp3");
    link("a.mp3", "0 link.mp3");
    link("/none/at/all.mp3", "dangling.mp3");
    EXPECT_EQ(tracks(), Paths{"a.mp3"});
}

TEST_F(FolderWalkTest, FollowsALinkOutOfTheFolderOnce) {
    m_folder.write("elsewhere/a.mp3", "x");
    m_folder.write("other/b.mp3", "x");
    link(m_folder.path() + "/elsewhere/a.mp3", "one.mp3");
    link(m_folder.path() + "/elsewhere/a.mp3", "two.mp3");
    link(m_folder.path() + "/other", "linked");
    link(m_folder.path() + "/other", "linked again");
    link(m_folder.path() + "/other/b.mp3", "three.mp3");
    EXPECT_EQ(tracks(), (Paths{"linked/b.mp3", "one.mp3"}));
}

TEST_F(FolderWalkTest, EndsInACircleOfLinks) {
    write("a/b.mp3");
    link("..", "a/up");
    link(root(), "self");
    EXPECT_EQ(tracks(), Paths{"a/b.mp3"});
}

TEST_F(FolderWalkTest, TakesTwoNamesOfOneFileForTwoTracks) {
    write("a.mp3");
    fs::create_hard_link(root() + "/a.mp3", root() + "/b.mp3");
    const FolderContents contents = walk();
    ASSERT_EQ(contents.tracks.size(), 2U);
    EXPECT_EQ(contents.tracks[0].inode, contents.tracks[1].inode);
}

TEST_F(FolderWalkTest, SaysWhichFolderCannotBeOpened) {
    write("open/a.mp3");
    write("closed/b.mp3");
    fs::permissions(root() + "/closed", fs::perms::none);
    fs::permissions(m_folder.path(), fs::perms::all);
    const bool holds = holdsForAnotherUser([this] {
        const FolderContents contents = walk();
        return contents.folders.size() == 1 && contents.folders[0].path == "closed" &&
               contents.folders[0].reason.find("Permission denied") != std::string::npos &&
               contents.tracks.size() == 1;
    });
    fs::permissions(root() + "/closed", fs::perms::owner_all);
    EXPECT_TRUE(holds);
}

TEST_F(FolderWalkTest, IsCancelledBetweenFolders) {
    write("a/b.mp3");
    const Result<FolderContents> contents = walkFolder(root(), [] { return true; });
    ASSERT_FALSE(contents);
    EXPECT_EQ(contents.error().code, Error::Code::cancelled);
}

TEST_F(FolderWalkTest, FailsWithoutTheFolder) {
    EXPECT_FALSE(walkFolder(root(), [] { return false; }));
}

} // namespace

} // namespace songsweep::test
