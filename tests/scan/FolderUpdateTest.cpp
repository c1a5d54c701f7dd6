// SPDX-License-Identifier: MIT
#include "scan/FolderScan.h"
#include "scan/FolderScanFixture.h"
#include "support/AnotherUser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

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

} // namespace
} // namespace songsweep::test
