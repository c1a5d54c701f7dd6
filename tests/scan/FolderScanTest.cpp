// SPDX-License-Identifier: MIT
#include "scan/FolderScan.h"

#include "libraryfile/LibraryDocument.h"
#include "sample-library/SoundSample.h"
#include "scan/FolderMemory.h"
#include "support/AnotherUser.h"
#include "support/TemporaryFolder.h"

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

class FolderScanTest : public ::testing::Test {
  protected:
    FolderScanTest() { fs::create_directories(root()); }

    std::string root() const { return m_folder.path() + "/Music"; }
    std::string path(const std::string& name) const { return root() + "/" + name; }

    void write(const std::string& name, const SoundSample& sample = {}) const {
        fs::create_directories(fs::path(path(name)).parent_path());
        ASSERT_TRUE(sample::writeSound(path(name), sample));
    }
    void writeTitled(const std::string& name, const std::string& title) const {
        write(name, {.tags = {{"TITLE", title}}});
    }

    FolderLibrary place() const { return FolderLibrary::of(root(), m_folder.path() + "/data").value(); }
    ScanReport scan(const ScanWatch& watch = {}) const {
        const Result<ScanReport> report = scanFolder(place(), watch);
        EXPECT_TRUE(report) << (report ? "" : report.error().message);
        return report ? report.value() : ScanReport();
    }
    std::string libraryBytes() const {
        return m_folder.read(place().library.substr(m_folder.path().size() + 1));
    }

    std::unique_ptr<LibraryDocument> open() const {
        auto document = LibraryDocument::open(place().library);
        EXPECT_TRUE(document) << (document ? "" : document.error().message);
        return std::move(document).value();
    }
    /// A value of every track, in the library's order.
    Texts values(const std::string& key) const {
        Texts texts;
        const auto document = open();
        const TrackListing& tracks = document->listing(0);
        for (std::size_t place = 0; place < tracks.size(); ++place) {
            const Result<const EntryValues*> all = document->values(tracks.track(place));
            const EntryValue* const value = all ? all.value()->find(key) : nullptr;
            texts.push_back(value == nullptr ? "" : value->text);
        }
        return texts;
    }
    std::string value(const std::string& key) const {
        const Texts texts = values(key);
        return texts.size() == 1 ? texts.front() : "not one track";
    }
    /// The names of the tracks of a playlist file's playlist.
    Texts itemsOf(const std::string& playlist) const {
        const auto document = open();
        const std::vector<PlaylistInfo> playlists = document->playlists();
        Texts names;
        for (std::size_t i = 0; i < playlists.size(); ++i) {
            if (playlists[i].name != playlist) continue;
            const TrackListing& items = document->listing(i);
            for (std::size_t place = 0; place < items.size(); ++place)
                names.emplace_back(document->fields(items.track(place)).value()->text(LibraryKey::name));
        }
        return names;
    }
    /// The file as it was written long ago, or at any other time.
    void setTime(const std::string& name, std::int64_t seconds) const {
        const struct timespec times[2] = {{seconds, 0}, {seconds, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, path(name).c_str(), times, 0), 0);
    }

    TemporaryFolder m_folder;
};

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

TEST_F(FolderScanTest, ChangesNothingWhereNothingChanged) {
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

TEST_F(FolderScanTest, LooksAtNewChangedAndVanishedFilesAlone) {
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

TEST_F(FolderScanTest, NoticesATimeAloneToo) {
    writeTitled("a.mp3", "A");
    scan();
    writeTitled("a.mp3", "B");
    setTime("a.mp3", 1'000'000'000);
    EXPECT_EQ(scan().changed, 1U);
    EXPECT_EQ(value("Name"), "B");
}

TEST_F(FolderScanTest, KeepsTheDateAddedOverChangesAndMoves) {
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

TEST_F(FolderScanTest, KnowsAMovedFileAgain) {
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

TEST_F(FolderScanTest, GivesNoIdTwice) {
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

TEST_F(FolderScanTest, TakesAnotherSongInANewPlaceForNew) {
    writeTitled("a.mp3", "A");
    scan();
    fs::remove(path("a.mp3"));
    writeTitled("b.mp3", "B"); // as long and as large
    const ScanReport report = scan();
    EXPECT_EQ(report.moved, 0U);
    EXPECT_EQ(report.added, 1U);
    EXPECT_EQ(report.vanished, 1U);
}

TEST_F(FolderScanTest, GivesAFileTheSameIdInEveryLibrary) {
    writeTitled("a.mp3", "A");
    scan();
    const std::string id = value("Persistent ID");
    fs::remove_all(m_folder.path() + "/data");
    scan();
    EXPECT_EQ(value("Persistent ID"), id);
}

TEST_F(FolderScanTest, TellsOfFilesThatCannotBeReadAndGoesOn) {
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

TEST_F(FolderScanTest, KeepsATrackWhoseFileIsBrokenNow) {
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

TEST_F(FolderScanTest, KeepsTracksOfAFolderThatCannotBeOpened) {
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

TEST_F(FolderScanTest, KeepsWhatWasReadWhenItIsCancelled) {
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

TEST_F(FolderScanTest, LosesNoTrackWhenAnUpdateIsCancelled) {
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
