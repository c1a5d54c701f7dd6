// SPDX-License-Identifier: MIT
#include "scan/FolderScan.h"
#include "scan/FolderScanFixture.h"
#include "support/AnotherUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <regex>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;
using sample::SoundKind;
using sample::SoundSample;
using Texts = std::vector<std::string>;

class FolderUpdateTest : public FolderScanFixture {};

TEST_F(FolderUpdateTest, ChangesNothingWhereNothingChanged) {
    writeTitled("a.mp3", "A");
    m_folder.write("Music/list.m3u", "a.mp3\n");
    scan();
    const std::string before = libraryBytes();
    const auto stamp = LibraryFile::stampOf(place().library).value();
    const ScanReport report = scan();
    EXPECT_EQ(report.tracks, 1U);
    EXPECT_EQ(report.added + report.changed + report.moved + report.vanished, 0U);
    EXPECT_EQ(libraryBytes(), before);
    EXPECT_EQ(LibraryFile::stampOf(place().library).value(), stamp);
}

TEST_F(FolderUpdateTest, LooksAtNewChangedAndVanishedFilesAlone) {
    for (const char* const name : {"a.mp3", "b.mp3", "c.mp3"})
        writeTitled(name, name);
    scan();
    const Texts ids = values("Persistent ID");
    const std::string library = libraryBytes();
    const std::string entry = library.substr(library.find("<key>Name</key><string>a.mp3"), 200);
    writeTitled("b.mp3", "changed");
    fs::remove(path("c.mp3"));
    writeTitled("d.flac.mp3", "new");
    const ScanReport report = scan();
    EXPECT_EQ(report.added, 1U);
    EXPECT_EQ(report.changed, 1U);
    EXPECT_EQ(report.vanished, 1U);
    EXPECT_EQ(values("Name"), (Texts{"a.mp3", "changed", "new"}));
    EXPECT_EQ(values("Persistent ID")[0], ids[0]);
    EXPECT_EQ(values("Persistent ID")[1], ids[1]);
    EXPECT_NE(libraryBytes().find(entry), std::string::npos);
}

TEST_F(FolderUpdateTest, NoticesATimeAloneToo) {
    writeTitled("a.mp3", "A");
    scan();
    writeTitled("a.mp3", "B");
    setTime("a.mp3", 1'000'000'000);
    EXPECT_EQ(scan().changed, 1U);
    EXPECT_EQ(value("Name"), "B");
}

TEST_F(FolderUpdateTest, KeepsTheDateAddedOverChangesAndMoves) {
    writeTitled("a.mp3", "A");
    scan();
    // As if the first scan had been long ago.
    std::string library = libraryBytes();
    const std::string date = value("Date Added");
    const std::string longAgo = "2001-09-09T01:46:40Z";
    library.replace(library.find("<key>Date Added</key><date>" + date) + 27, date.size(), longAgo);
    m_folder.write(place().library.substr(m_folder.path().size() + 1), library);
    writeTitled("a.mp3", "changed");
    scan();
    EXPECT_EQ(value("Name"), "changed");
    EXPECT_EQ(value("Date Added"), longAgo);
    fs::rename(path("a.mp3"), path("z.mp3"));
    scan();
    EXPECT_EQ(value("Date Added"), longAgo);
}

TEST_F(FolderUpdateTest, KnowsAMovedFileAgain) {
    writeTitled("a.mp3", "A");
    writeTitled("b.mp3", "B");
    scan();
    const Texts ids = values("Persistent ID");
    fs::create_directories(path("new"));
    fs::rename(path("a.mp3"), path("new/x.mp3"));
    const ScanReport report = scan();
    EXPECT_EQ(report.moved, 1U);
    EXPECT_EQ(report.added + report.vanished, 0U);
    EXPECT_EQ(values("Name"), (Texts{"B", "A"}));
    EXPECT_EQ(values("Persistent ID"), (Texts{ids[1], ids[0]}));
    EXPECT_EQ(values("Location")[1], "file://" + root() + "/new/x.mp3");
}

TEST_F(FolderUpdateTest, GivesNoIdTwice) {
    writeTitled("a.mp3", "A");
    scan();
    const std::string id = value("Persistent ID");
    fs::rename(path("a.mp3"), path("b.mp3"));
    scan();
    writeTitled("a.mp3", "another song");
    scan();
    const Texts ids = values("Persistent ID");
    ASSERT_EQ(ids.size(), 2U);
    EXPECT_NE(ids[0], ids[1]);
    EXPECT_EQ(ids[1], id);
}

TEST_F(FolderUpdateTest, TakesAnotherSongInANewPlaceForNew) {
    writeTitled("a.mp3", "A");
    scan();
    fs::remove(path("a.mp3"));
    writeTitled("b.mp3", "B"); // as long and as large
    const ScanReport report = scan();
    EXPECT_EQ(report.moved, 0U);
    EXPECT_EQ(report.added, 1U);
    EXPECT_EQ(report.vanished, 1U);
}

TEST_F(FolderUpdateTest, GivesAFileTheSameIdInEveryLibrary) {
    writeTitled("a.mp3", "A");
    scan();
    const std::string id = value("Persistent ID");
    fs::remove_all(m_folder.path() + "/data");
    scan();
    EXPECT_EQ(value("Persistent ID"), id);
}

TEST_F(FolderUpdateTest, TellsOfFilesThatCannotBeReadAndGoesOn) {
    writeTitled("a.mp3", "A");
    m_folder.write("Music/broken.mp3", "no sound");
    m_folder.write("Music/empty.flac", "");
    const ScanReport report = scan();
    EXPECT_EQ(report.tracks, 1U);
    ASSERT_EQ(report.unread.size(), 2U);
    EXPECT_EQ(report.unread[0].path, "broken.mp3");
    const auto stamp = LibraryFile::stampOf(place().library).value();
    EXPECT_EQ(scan().unread.size(), 2U);
    EXPECT_EQ(LibraryFile::stampOf(place().library).value(), stamp) << "written again for nothing";
}

TEST_F(FolderUpdateTest, KeepsATrackWhoseFileIsBrokenNow) {
    writeTitled("a.mp3", "A");
    scan();
    const std::string id = value("Persistent ID");
    m_folder.write("Music/a.mp3", "half of a new version");
    EXPECT_EQ(scan().unread.size(), 1U);
    EXPECT_EQ(value("Name"), "A");
    writeTitled("a.mp3", "whole");
    EXPECT_EQ(scan().changed, 1U);
    EXPECT_EQ(value("Name"), "whole");
    EXPECT_EQ(value("Persistent ID"), id);
}

TEST_F(FolderUpdateTest, KeepsTracksOfAFolderThatCannotBeOpened) {
    writeTitled("closed/a.mp3", "A");
    writeTitled("b.mp3", "B");
    scan();
    writeTitled("c.mp3", "C");
    fs::permissions(path("closed"), fs::perms::none);
    for (const std::string& folder : {m_folder.path(), m_folder.path() + "/data/songsweep"})
        fs::permissions(folder, fs::perms::all);
    fs::permissions(place().library, fs::perms::all);
    fs::permissions(place().memory, fs::perms::all);
    const bool holds = holdsForAnotherUser([this] {
        const ScanReport report = scan();
        return report.unread.size() == 1 && report.vanished == 0 && report.tracks == 3 && report.added == 1;
    });
    fs::permissions(path("closed"), fs::perms::owner_all);
    EXPECT_TRUE(holds);
}

TEST_F(FolderUpdateTest, KeepsWhatWasReadWhenItIsCancelled) {
    for (int i = 100; i < 300; ++i)
        write(std::to_string(i) + ".mp3");
    std::size_t taken = 0;
    ScanWatch watch;
    watch.progress = [&](std::size_t read, std::size_t toRead) {
        taken = read;
        EXPECT_EQ(toRead, 200U);
    };
    watch.isCancelled = [&] { return taken == 70; };
    const ScanReport report = scan(watch);
    EXPECT_EQ(report.end, ScanReport::End::cancelled);
    EXPECT_EQ(report.tracks, 70U);
    EXPECT_EQ(values("Name").size(), 70U);
    EXPECT_EQ(scan().added, 130U);
    EXPECT_EQ(values("Name").size(), 200U);
}

TEST_F(FolderUpdateTest, LosesNoTrackWhenAnUpdateIsCancelled) {
    writeTitled("a.mp3", "A");
    writeTitled("b.mp3", "B");
    scan();
    const Texts ids = values("Persistent ID");
    fs::rename(path("a.mp3"), path("z.mp3"));
    writeTitled("b.mp3", "changed");
    ScanWatch watch;
    bool walked = false;
    watch.progress = [&](std::size_t, std::size_t) { walked = true; };
    watch.isCancelled = [&] { return walked; };
    EXPECT_EQ(scan(watch).end, ScanReport::End::cancelled);
    EXPECT_EQ(values("Persistent ID").size(), 2U);
    EXPECT_EQ(scan().moved, 1U);
    Texts after = values("Persistent ID");
    std::sort(after.begin(), after.end());
    Texts before = ids;
    std::sort(before.begin(), before.end());
    EXPECT_EQ(after, before);
}

/// A second disk, seen through a link in the folder.
class FolderOfTwoDisksTest : public FolderScanFixture {
  protected:
    void SetUp() override {
        writeTitled("here.mp3", "Here");
        writeTitled("moved/a.mp3", "A");
        writeTitled("moved/b.mp3", "B");
        if (!fs::exists("/dev/shm")) GTEST_SKIP() << "no second disk";
        m_disk = fs::path("/dev/shm") / fs::path(m_folder.path()).filename();
        fs::copy(path("moved"), m_disk, fs::copy_options::recursive);
        fs::remove_all(path("moved"));
        fs::create_directory_symlink(m_disk, path("disk"));
        ASSERT_EQ(scan().tracks, 3U);
        m_ids = values("Persistent ID");
    }
    void TearDown() override { fs::remove_all(m_disk); }

    /// The link leads to a folder of this disk, as it does to the place of a disk that is not mounted.
    void unmount() const {
        fs::remove(path("disk"));
        fs::create_directories(m_folder.path() + "/empty");
        fs::create_directory_symlink(m_folder.path() + "/empty", path("disk"));
    }
    void mount() const {
        fs::remove(path("disk"));
        fs::create_directory_symlink(m_disk, path("disk"));
    }
    void expectTracksKept() {
        for (int i = 0; i < 2; ++i) {
            const ScanReport report = scan();
            EXPECT_EQ(report.tracks, 3U);
            EXPECT_EQ(report.vanished, 0U);
            ASSERT_EQ(report.unread.size(), 1U);
            EXPECT_EQ(report.unread[0].path, "disk");
            EXPECT_EQ(report.unread[0].reason,
                      "the disk that was here is not there now; 2 tracks of it stay in the library");
        }
        EXPECT_EQ(values("Persistent ID"), m_ids);
    }

    fs::path m_disk;
    Texts m_ids;
};

TEST_F(FolderOfTwoDisksTest, KeepsTracksBehindALinkThatLeadsNowhere) {
    fs::rename(m_disk, m_disk.string() + " away");
    expectTracksKept();
    fs::rename(m_disk.string() + " away", m_disk);
    EXPECT_EQ(scan().added, 0U);
}

TEST_F(FolderOfTwoDisksTest, KeepsTracksOfADiskThatIsNotMounted) {
    unmount();
    expectTracksKept();
    mount();
    const ScanReport report = scan();
    EXPECT_EQ(report.added + report.changed + report.vanished + report.unread.size(), 0U);
}

TEST_F(FolderOfTwoDisksTest, TakesOutWhatIsGoneFromADiskThatIsThere) {
    fs::remove(m_disk / "a.mp3");
    EXPECT_EQ(scan().vanished, 1U);
    fs::remove(m_disk / "b.mp3");
    EXPECT_EQ(scan().vanished, 1U);
}

TEST_F(FolderOfTwoDisksTest, TakesOutTheTracksBehindALinkThatIsRemoved) {
    fs::remove(path("disk"));
    EXPECT_EQ(scan().vanished, 2U);
}

TEST_F(FolderOfTwoDisksTest, TakesAFolderInTheDisksPlaceForIt) {
    fs::remove(path("disk"));
    fs::create_directory(path("disk"));
    fs::copy(m_disk / "a.mp3", path("disk/a.mp3"));
    EXPECT_EQ(scan().vanished, 0U);
    EXPECT_EQ(scan().vanished, 1U);
    EXPECT_EQ(scan().tracks, 2U);
}

TEST_F(FolderUpdateTest, GivesADeletedTrackWhoseFileStayedItsIdAndDateAgain) {
    writeTitled("a.mp3", "A");
    writeTitled("sub/b.mp3", "B");
    scan();
    fs::rename(path("sub/b.mp3"), path("c.mp3")); // whose ID is not that of its path then
    scan();
    const Texts ids = values("Persistent ID");
    const std::regex added("(<key>Date Added</key><date>)[^<]*");
    m_folder.write(fs::relative(place().library, m_folder.path()).string(),
                   std::regex_replace(libraryBytes(), added, "$012001-02-03T04:05:06Z"));
    scan();
    writeTitled("new.mp3", "New"); // so that the memory knows the dates
    scan();
    const auto document = open();
    for (const std::string& id : ids)
        ASSERT_TRUE(document->remove(document->tracksWithPersistentId(id).front()));
    ASSERT_TRUE(document->flush());
    EXPECT_EQ(scan().added, 2U);
    const Texts after = values("Persistent ID");
    const Texts dates = values("Date Added");
    for (const std::string& id : ids) {
        const auto place = std::find(after.begin(), after.end(), id);
        ASSERT_NE(place, after.end());
        EXPECT_EQ(dates[static_cast<std::size_t>(place - after.begin())], "2001-02-03T04:05:06Z");
    }
}

} // namespace
} // namespace songsweep::test
