// SPDX-License-Identifier: MIT
#include "scan/FolderScan.h"

#include "scan/FolderScanFixture.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>

namespace songsweep::test {

namespace {

namespace fs = std::filesystem;
using sample::SoundKind;
using sample::SoundSample;
using Texts = std::vector<std::string>;

class FolderScanTest : public FolderScanFixture {};

TEST_F(FolderScanTest, WritesALibraryOfEveryFormat) {
    for (int kind = 0; kind < sample::soundKinds; ++kind)
        write(std::to_string(kind) + "." + std::string(sample::endingOf(static_cast<SoundKind>(kind))),
              {.kind = static_cast<SoundKind>(kind), .tags = {{"TITLE", "a & <b> é"}}});
    const ScanReport report = scan();
    EXPECT_EQ(report.tracks, static_cast<std::size_t>(sample::soundKinds));
    EXPECT_EQ(report.added, report.tracks);
    EXPECT_TRUE(report.unread.empty());
    EXPECT_EQ(values("Name"), Texts(sample::soundKinds, "a & <b> é"));
    const auto playlists = open()->playlists();
    ASSERT_EQ(playlists.size(), 2U);
    EXPECT_EQ(playlists[0].name, "Library");
    EXPECT_EQ(playlists[1].name, "Music");
    EXPECT_EQ(playlists[1].trackCount, sample::soundKinds);
}

TEST_F(FolderScanTest, WritesWhatTheTagsSay) {
    write("a b.mp3", {.seconds = 100,
                      .kilobits = 192,
                      .tags = {{"TITLE", "Song"},
                               {"ARTIST", "Artist"},
                               {"ALBUM", "Album"},
                               {"ALBUMARTIST", "Various"},
                               {"GENRE", "Rock"},
                               {"COMPOSER", "Bach"},
                               {"COMMENT", "Fine"},
                               {"DATE", "1999"},
                               {"TRACKNUMBER", "3/12"},
                               {"DISCNUMBER", "1/2"},
                               {"BPM", "98"},
                               {"FMPS_RATING", "0.8"}},
                      .pictures = 1});
    setTime("a b.mp3", 1'000'000'000);
    scan();
    const std::map<std::string, std::string> expected = {{"Name", "Song"},
                                                         {"Artist", "Artist"},
                                                         {"Album", "Album"},
                                                         {"Album Artist", "Various"},
                                                         {"Genre", "Rock"},
                                                         {"Composer", "Bach"},
                                                         {"Comments", "Fine"},
                                                         {"Year", "1999"},
                                                         {"Track Number", "3"},
                                                         {"Track Count", "12"},
                                                         {"Disc Number", "1"},
                                                         {"Disc Count", "2"},
                                                         {"BPM", "98"},
                                                         {"Rating", "80"},
                                                         {"Artwork Count", "1"},
                                                         {"Bit Rate", "192"},
                                                         {"Sample Rate", "44100"},
                                                         {"Kind", "MPEG audio file"},
                                                         {"Track Type", "File"},
                                                         {"Date Modified", "2001-09-09T01:46:40Z"}};
    for (const auto& [key, text] : expected)
        EXPECT_EQ(value(key), text) << key;
    EXPECT_EQ(value("Location"), "file://" + root() + "/a%20b.mp3");
    EXPECT_EQ(value("Size"), std::to_string(fs::file_size(path("a b.mp3"))));
    EXPECT_NEAR(std::stoi(value("Total Time")), 100'000, 100);
    EXPECT_EQ(value("Persistent ID").size(), 16U);
}

TEST_F(FolderScanTest, MakesPlaylistsOfPlaylistFiles) {
    writeTitled("Rock/a.mp3", "A");
    writeTitled("Rock/caf\xC3\xA9.mp3", "B");
    m_folder.write("Music/lists/mine.m3u",
                   "#EXTM3U\n#EXTINF:1,x\n..\\Rock\\caf\xE9.mp3\n../Rock/a.mp3\nnone.mp3\n");
    m_folder.write("Music/two.pls", "[playlist]\nFile1=Rock/a.mp3\n");
    m_folder.write("Music/three.xspf",
                   "<playlist><trackList><track><location>Rock/caf%C3%A9.mp3</location></track>"
                   "</trackList></playlist>");
    scan();
    EXPECT_EQ(itemsOf("mine"), (Texts{"B", "A"}));
    EXPECT_EQ(itemsOf("two"), Texts{"A"});
    EXPECT_EQ(itemsOf("three"), Texts{"B"});
    m_folder.write("Music/two.pls", "[playlist]\nFile1=Rock/a.mp3\nFile2=Rock/a.mp3\n");
    scan();
    EXPECT_EQ(itemsOf("two"), (Texts{"A", "A"}));
    fs::remove(path("two.pls"));
    scan();
    EXPECT_EQ(open()->playlists().size(), 4U);
}

TEST_F(FolderScanTest, GoesOnWithALibraryThatWasChanged) {
    for (const char* const name : {"a.mp3", "b.mp3", "c.mp3"})
        writeTitled(name, name);
    scan();
    const Texts ids = values("Persistent ID");
    {
        const auto document = open();
        const auto track = document->tracksWithPersistentId(ids[1]).front();
        ASSERT_TRUE(document->remove(track));
        ASSERT_TRUE(document->setValue(document->tracksWithPersistentId(ids[0]).front(),
                                       {"Rating", ValueChange::Form::integer, "100"}));
        ASSERT_TRUE(document->flush());
    }
    fs::remove(path("b.mp3"));
    const ScanReport report = scan();
    EXPECT_EQ(report.tracks, 2U);
    EXPECT_EQ(report.added + report.changed, 0U);
    EXPECT_EQ(values("Name"), (Texts{"a.mp3", "c.mp3"}));
    EXPECT_EQ(values("Rating")[0], "100");
    writeTitled("b.mp3", "back again");
    EXPECT_EQ(scan().added, 1U);
    EXPECT_EQ(values("Persistent ID"), ids);
}

TEST_F(FolderScanTest, NeedsNoMemory) {
    writeTitled("a.mp3", "A");
    scan();
    const Texts before = values("Date Added");
    const std::string id = value("Persistent ID");
    fs::remove(place().memory);
    EXPECT_EQ(scan().changed, 1U);
    EXPECT_EQ(value("Persistent ID"), id);
    EXPECT_EQ(values("Date Added"), before);
    EXPECT_EQ(scan().changed, 0U);
}

TEST_F(FolderScanTest, MakesALibraryAnewOfWhichALossOfPowerLeftNothing) {
    writeTitled("a.mp3", "A");
    scan();
    fs::resize_file(place().library, 0);
    fs::resize_file(place().memory, 0);
    EXPECT_EQ(scan().added, 1U);
    EXPECT_EQ(value("Name"), "A");
}

TEST_F(FolderScanTest, LeavesALibraryAloneThatAnotherHolds) {
    writeTitled("a.mp3", "A");
    scan();
    writeTitled("b.mp3", "B");
    const auto lock = CleanupLock::acquire(place().library, {"a test", {}});
    ASSERT_TRUE(lock);
    const Result<ScanReport> report = scanFolder(place(), {});
    ASSERT_FALSE(report);
    EXPECT_EQ(report.error().code, Error::Code::busy);
}

TEST_F(FolderScanTest, FailsWhereTheFolderIsGone) {
    writeTitled("a.mp3", "A");
    scan();
    const FolderLibrary gone = place();
    fs::rename(root(), root() + " elsewhere");
    EXPECT_FALSE(scanFolder(gone, {}));
    EXPECT_FALSE(FolderLibrary::of(root(), m_folder.path()));
    EXPECT_EQ(LibraryDocument::open(gone.library).value()->trackCount(), 1);
}

TEST_F(FolderScanTest, KnowsTheFolderOfALibrary) {
    writeTitled("a.mp3", "A");
    scan();
    const auto known = FolderLibrary::ofLibrary(place().library, m_folder.path() + "/data");
    ASSERT_TRUE(known);
    EXPECT_EQ(known->folder, place().folder);
    // A copy of it is a library like any other.
    fs::copy_file(place().library, m_folder.path() + "/copy.xml");
    EXPECT_FALSE(FolderLibrary::ofLibrary(m_folder.path() + "/copy.xml", m_folder.path() + "/data"));
    fs::rename(root(), root() + " elsewhere");
    EXPECT_FALSE(FolderLibrary::ofLibrary(known->library, m_folder.path() + "/data"));
}

TEST_F(FolderScanTest, TellsFoldersOfOneNameApart) {
    fs::create_directories(m_folder.path() + "/other/Music");
    const FolderLibrary other = FolderLibrary::of(m_folder.path() + "/other/Music", m_folder.path()).value();
    EXPECT_NE(fs::path(other.library).filename(), fs::path(place().library).filename());
    EXPECT_TRUE(fs::path(other.library).filename().string().starts_with("Music "));
    fs::create_directory_symlink(root(), m_folder.path() + "/link");
    EXPECT_EQ(FolderLibrary::of(m_folder.path() + "/link/", m_folder.path() + "/data").value().library,
              place().library);
}

} // namespace

} // namespace songsweep::test
