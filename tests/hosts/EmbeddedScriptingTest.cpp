// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScripting.h"

#include "hosts/RecordingDesktop.h"
#include "library/ValueFormats.h"
#include "libraryfile/LibraryFixture.h"
#include "platform/Files.h"
#include "platform/HfsPath.h"
#include "support/RecordingLog.h"
#include "support/SystemTexts.h"

#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <thread>

namespace songsweep {
namespace {

using test::contentOf;
using test::Folder;
using test::libraryXml;
using test::manyTracks;
using test::persistentIdOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// Times that no test reaches: what is written is written by a call.
constexpr WriteSchedule::Times never{std::chrono::hours(1), std::chrono::hours(1), std::chrono::hours(1)};

class EmbeddedScriptingTest : public testing::Test {
  protected:
    EmbeddedScripting& open(std::string_view text, WriteSchedule::Times times = never) {
        EmbeddedScripting::Options options;
        options.writes = times;
        options.log = &m_log;
        m_path = m_folder.write("library.xml", text);
        m_scripts = std::make_unique<EmbeddedScripting>(m_path, m_desktop, m_files, options);
        return *m_scripts;
    }

    Descriptor run(const std::string& source) {
        const auto result = m_scripts->executeAndReturnError(source);
        EXPECT_TRUE(result) << source << "\n" << result.error().message;
        return result ? result.value() : Descriptor();
    }

    std::string text(const std::string& source) { return run(source).stringValue().value_or("(none)"); }

    std::vector<std::string> texts(const Descriptor& list) {
        std::vector<std::string> all;
        for (int i = 1; i <= list.numberOfItems(); ++i)
            all.push_back(list.descriptorAtIndex(i)->stringValue().value_or("(none)"));
        return all;
    }

    std::string failure(const std::string& source) {
        const auto result = m_scripts->executeAndReturnError(source);
        return result ? "(no failure)" : result.error().message;
    }

    /// Another program's new version takes the library's place.
    void replaceLibrary(std::string_view text) const {
        std::filesystem::rename(m_folder.write("new.xml", text), m_path);
    }

    /// A file in the folder and its location as a library has it.
    std::string locationOf(const std::string& name) {
        m_folder.write(name, "sound");
        const QByteArray path = QUrl::toPercentEncoding(QString::fromStdString(m_folder.pathOf(name)), "/");
        return "<key>Location</key><string>file://localhost" + path.toStdString() + "</string>";
    }

    Folder m_folder;
    std::string m_path;
    test::RecordingDesktop m_desktop;
    test::RecordingLog m_log;
    Files m_files;
    std::unique_ptr<EmbeddedScripting> m_scripts;
};

TEST_F(EmbeddedScriptingTest, AnswersTheQuestionsOfASearch) {
    open(libraryXml({{1, "A1", ""}, {2, "A2", ""}, {3, "A3", ""}},
                    {{"Library", "<key>Master</key><true/>", {1, 2, 3}},
                     {"Smart", "<key>Smart Info</key><data/>", {1}},
                     {"Mine", "", {3, 1}},
                     {"Folder", "<key>Folder</key><true/>", {}},
                     {"Mine", "", {2}}}));
    EXPECT_THAT(texts(run(test::userPlaylistNamesText)),
                ElementsAre("Library", "Smart", "Mine", "Folder", "Mine"));
    EXPECT_THAT(texts(run(test::plainPlaylistNamesText)), ElementsAre("Mine", "Folder", "Mine"));
    EXPECT_EQ(text(test::playlistIndexText("Mine")), "3");
    EXPECT_EQ(text(test::playlistIndexText("Nobody's")), "-1");
    EXPECT_EQ(text(test::trackCountText), "3");
    EXPECT_EQ(text(test::playlistTrackCountText(3)), "2");
    EXPECT_EQ(text(test::versionText), "12.0");
}

TEST_F(EmbeddedScriptingTest, TheVersionCanBeAnother) {
    EmbeddedScripting::Options options;
    options.iTunesVersion = "9.2.1";
    const std::string path = m_folder.write("library.xml", manyTracks(1));
    EmbeddedScripting scripts(path, m_desktop, m_files, options);
    EXPECT_EQ(scripts.executeAndReturnError(test::versionText).value().stringValue(), "9.2.1");
}

TEST_F(EmbeddedScriptingTest, APlaylistNameThatBreaksTheTextFailsIt) {
    open(manyTracks(1));
    EXPECT_NE(failure(test::playlistIndexText("say \"hi\" to")), "(no failure)");
}

TEST_F(EmbeddedScriptingTest, AFileWithoutPlaylistsListsNoneAndStillCountsItsTracks) {
    open("<plist><dict><key>Tracks</key><dict><key>1</key><dict/><key>2</key><dict></dict></dict></dict></"
         "plist>");
    EXPECT_THAT(texts(run(test::userPlaylistNamesText)), ElementsAre());
    EXPECT_EQ(text(test::trackCountText), "2");
    EXPECT_EQ(text(test::playlistIndexText("Music")), "-1");
    EXPECT_TRUE(m_scripts->playlists().value().empty());
}

TEST_F(EmbeddedScriptingTest, ABatchGivesTheTwelveValuesOfEveryTrack) {
    open(libraryXml(
        {{1, "00000000000000A1",
          "<key>Name</key><string>One</string><key>Artist</key><string>Ann</string><key>Album</key>"
          "<string>First</string><key>Total Time</key><integer>245000</integer><key>Bit Rate</key>"
          "<integer>192</integer><key>Size</key><integer>1048576</integer><key>Date Added</key>"
          "<date>2009-03-14T15:09:26Z</date><key>Rating</key><integer>60</integer><key>Play Count</key>"
          "<integer>7</integer><key>Artwork Count</key><integer>2</integer>" +
              locationOf("one.mp3")},
         {2, "00000000000000A2", "<key>Name</key><string>Two</string>"}},
        {{"Library", "<key>Master</key><true/>", {2, 1}}}));
    const Descriptor result = run(test::batchText(1, 1, 2));
    ASSERT_EQ(result.numberOfItems(), 1);
    const Descriptor& records = *result.descriptorAtIndex(1);
    ASSERT_EQ(records.numberOfItems(), 2);
    const Descriptor& one = *records.descriptorAtIndex(2);
    ASSERT_EQ(one.numberOfItems(), 12);
    const auto values = texts(one);
    EXPECT_THAT(std::vector(values.begin(), values.begin() + 6),
                ElementsAre("One", "Ann", "First", "4:05", "192", "1048576"));
    EXPECT_EQ(one.descriptorAtIndex(7)->data().size(), 8U);
    EXPECT_THAT(std::vector(values.begin() + 7, values.begin() + 11),
                ElementsAre("60", "00000000000000A1", "7", m_folder.pathOf("one.mp3")));
    EXPECT_EQ(one.descriptorAtIndex(12)->numberOfItems(), 2);

    const auto two = texts(*records.descriptorAtIndex(1));
    EXPECT_THAT(std::vector(two.begin(), two.begin() + 6), ElementsAre("Two", "", "", "", "", ""));
    EXPECT_THAT(std::vector(two.begin() + 7, two.begin() + 11),
                ElementsAre("0", "00000000000000A2", "0", "msng"));
    EXPECT_EQ(records.descriptorAtIndex(1)->descriptorAtIndex(12)->numberOfItems(), 0);
}

TEST_F(EmbeddedScriptingTest, TheLocationOfATrackIsItsPathOrMissing) {
    open(libraryXml(
        {{1, "A1", locationOf("one.mp3")}, {2, "A2", "<key>Location</key><string>file:///none</string>"}},
        {}));
    EXPECT_EQ(text(test::locationText("A1")), m_folder.pathOf("one.mp3"));
    EXPECT_EQ(text(test::locationText("A2")), "msng");
    EXPECT_EQ(run(test::locationText("A9")).stringValue(), std::nullopt); // An empty list in a list.
}

TEST_F(EmbeddedScriptingTest, ATrackWithoutAPersistentIdMatchesNoFilterOnIt) {
    open(libraryXml({{1, "", ""}, {2, "A2", ""}}, {}));
    for (const std::string operand : {"\"\"", "\"0\"", "\"msng\"", "missing value"})
        EXPECT_EQ(text("tell application \"iTunes\" to get count of (tracks whose persistent ID is " +
                       operand + ")"),
                  "0")
            << operand;
}

TEST_F(EmbeddedScriptingTest, AFilterFindsAllTracksOfAnId) {
    open(libraryXml(
        {{1, "A1", "<key>Name</key><string>x</string>"}, {2, "A1", "<key>Name</key><string>y</string>"}},
        {}));
    EXPECT_THAT(
        texts(run("tell application \"iTunes\" to get name of (tracks whose persistent ID is \"a1\")")),
        ElementsAre("x", "y"));
}

TEST_F(EmbeddedScriptingTest, OtherFiltersWalkTheTracks) {
    open(libraryXml({{1, "A1", "<key>Name</key><string>x</string><key>Rating</key><integer>80</integer>"},
                     {2, "A2", "<key>Name</key><string>y</string>"}},
                    {{"All", "", {1, 2}}, {"Mine", "", {2}}}));
    const auto inPlaylist = [&](int playlist, const std::string& statement) {
        return run("tell application \"iTunes\" \ntell playlist " + std::to_string(playlist) + " \n" +
                   statement + " \nend tell \nend tell");
    };
    EXPECT_THAT(texts(inPlaylist(1, "get name of every track whose rating > 60")), ElementsAre("x"));
    EXPECT_THAT(texts(inPlaylist(2, "get name of every track whose name is \"y\"")), ElementsAre("y"));
    EXPECT_EQ(inPlaylist(2, "get count of (tracks whose persistent ID is \"A1\")").stringValue(), "0");
}

TEST_F(EmbeddedScriptingTest, DeletesTracksAtOnceAndWritesThemTogether) {
    open(manyTracks(10));
    for (const int n : {1, 4, 7})
        run(test::deleteTrackText(persistentIdOf(n)));
    EXPECT_EQ(text(test::trackCountText), "7");
    EXPECT_EQ(contentOf(m_path), manyTracks(10));
    EXPECT_EQ(m_scripts->pendingDeletions(), 3U);
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 7);
    EXPECT_THAT(m_log.lines(), ElementsAre("Library written : 3 tracks deleted"));
}

TEST_F(EmbeddedScriptingTest, DeletingNothingIsNoError) {
    open(manyTracks(2));
    run(test::deleteTrackText("no such ID"));
    run("tell application \"iTunes\" to delete {}");
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
}

TEST_F(EmbeddedScriptingTest, DeletesATrackByItsPlace) {
    open(manyTracks(3));
    run("tell application \"iTunes\" to delete track 2 of playlist 1");
    EXPECT_THAT(texts(run("tell application \"iTunes\" to get name of every track of playlist 1")),
                ElementsAre("Song 0 & more", "Song 2 & more"));
    EXPECT_THAT(failure("tell application \"iTunes\" to delete playlist 1"),
                HasSubstr("only tracks can be deleted"));
}

TEST_F(EmbeddedScriptingTest, WhatIsLeftIsWrittenAtTheEnd) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    m_scripts.reset();
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedScriptingTest, TheWriterWritesByItself) {
    using namespace std::chrono_literals;
    open(manyTracks(3), {1ms, 1ms, 1h});
    run(test::deleteTrackText(persistentIdOf(0)));
    // The writer has no other way to tell; a hang ends at the test's own limit.
    while (m_scripts->pendingDeletions() > 0)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedScriptingTest, AFailedWriteKeepsItsReasonAndItsDeletions) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    EXPECT_FALSE(m_scripts->flush());
    ASSERT_TRUE(m_scripts->lastWriteError());
    EXPECT_EQ(m_scripts->lastWriteError()->code, Error::Code::notFound);
    EXPECT_EQ(m_scripts->pendingDeletions(), 1U);
    EXPECT_THAT(m_log.lines(), ElementsAre(StartsWith("Library not written : cannot find ")));
    m_folder.write("library.xml", manyTracks(4));
    EXPECT_TRUE(m_scripts->flush());
    EXPECT_FALSE(m_scripts->lastWriteError());
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 3);
}

TEST_F(EmbeddedScriptingTest, AfterTheLastTextAllIsWrittenAndNoneIsRun) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    EXPECT_TRUE(m_scripts->runLast("tell application \"Finder\" to set volume with output muted"));
    EXPECT_THAT(m_desktop.calls, ElementsAre("mute"));
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
    EXPECT_EQ(failure(test::deleteTrackText(persistentIdOf(1))), "the program ends");
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
}

TEST_F(EmbeddedScriptingTest, EveryDeletionRunKeepsABackup) {
    open(manyTracks(4));
    ASSERT_TRUE(m_scripts->beginDeletionRun());
    run(test::deleteTrackText(persistentIdOf(0)));
    ASSERT_TRUE(m_scripts->flush());
    const std::string first = m_scripts->backup();
    EXPECT_EQ(contentOf(first), manyTracks(4));
    ASSERT_TRUE(m_scripts->beginDeletionRun());
    EXPECT_EQ(m_scripts->backup(), "");
    run(test::deleteTrackText(persistentIdOf(1)));
    ASSERT_TRUE(m_scripts->flush());
    EXPECT_NE(m_scripts->backup(), first);
    EXPECT_EQ(LibraryDocument::open(m_scripts->backup()).value()->trackCount(), 3);
}

TEST_F(EmbeddedScriptingTest, NoDeletionBeginsWhereAnEarlierOneCannotBeWritten) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    const auto begun = m_scripts->beginDeletionRun();
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().code, Error::Code::notFound);
    EXPECT_EQ(m_scripts->pendingDeletions(), 1U);
    m_folder.write("library.xml", manyTracks(3));
    EXPECT_TRUE(m_scripts->beginDeletionRun());
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
}

TEST_F(EmbeddedScriptingTest, NoDeletionBeginsInALibraryThatIsRefused) {
    open("<plist>\n<dict>\n<key>Tracks</key>\n<dict>\n</array>");
    const auto begun = m_scripts->beginDeletionRun();
    ASSERT_FALSE(begun);
    EXPECT_EQ(begun.error().message, "line 5: </array> stands where </dict> is due");
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsRefusedFailsItsScriptsAndSaysWhy) {
    open("<plist>\n<dict>\n<key>Tracks</key>\n<dict>\n</array>");
    EXPECT_FALSE(m_scripts->libraryError()); // Nobody has asked for it yet.
    EXPECT_THAT(failure(test::trackCountText), HasSubstr("line 5: </array> stands where </dict> is due"));
    EXPECT_NE(failure(test::versionText), "(no failure)");
    EXPECT_EQ(m_scripts->libraryError()->message, "line 5: </array> stands where </dict> is due");
    run(test::unmuteText);

    m_folder.write("library.xml", manyTracks(2));
    EXPECT_EQ(text(test::trackCountText), "2");
    EXPECT_FALSE(m_scripts->libraryError());
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsMissingFailsItsScripts) {
    open(manyTracks(1));
    ASSERT_EQ(::unlink(m_path.c_str()), 0);
    EXPECT_NE(failure(test::trackCountText), "(no failure)");
    EXPECT_EQ(m_scripts->libraryError()->code, Error::Code::notFound);
}

TEST_F(EmbeddedScriptingTest, TurnsToAnotherLibraryAfterWritingTheFirst) {
    open(manyTracks(3));
    run(test::deleteTrackText(persistentIdOf(0)));
    const std::string other = m_folder.write("other.xml", manyTracks(7));
    ASSERT_TRUE(m_scripts->openLibrary(other));
    EXPECT_EQ(text(test::trackCountText), "7");
    EXPECT_EQ(m_scripts->libraryPath(), other);
    EXPECT_EQ(LibraryDocument::open(m_path).value()->trackCount(), 2);
}

TEST_F(EmbeddedScriptingTest, PlaysStopsAndMutes) {
    open(libraryXml({{1, "A1", locationOf("a \xC3\xA4.mp3")}}, {}));
    const std::string path = m_folder.pathOf("a \xC3\xA4.mp3");
    run(test::playText(hfsPath(path).value()));
    run("tell application \"iTunes\" to play (tracks whose persistent ID is \"A1\")");
    run(test::stopText);
    run(test::muteText);
    run(test::unmuteText);
    EXPECT_THAT(m_desktop.calls, ElementsAre("play " + path, "play " + path, "stop", "mute", "unmute"));
    EXPECT_THAT(failure(test::playText("Macintosh HD:none.mp3")), HasSubstr("there is no file /none.mp3"));
}

TEST_F(EmbeddedScriptingTest, FinderMovesAFileToTheTrash) {
    open(manyTracks(1));
    const std::string path = m_folder.write("a:b.mp3", "sound");
    run(test::deleteFileText(hfsPath(path).value()));
    EXPECT_THAT(m_desktop.calls, ElementsAre("trash " + path));
}

TEST_F(EmbeddedScriptingTest, WhatTheTrashRefusesFailsTheScriptWithTheReason) {
    open(manyTracks(1));
    m_desktop.trashRefusal = "the disk has no Trash";
    const std::string path = m_folder.write("a.mp3", "sound");
    EXPECT_THAT(failure(test::deleteFileText(hfsPath(path).value())), HasSubstr("the disk has no Trash"));
    EXPECT_EQ(contentOf(path), "sound");
}

TEST_F(EmbeddedScriptingTest, AFileThatIsNotThereFailsTheScript) {
    open(manyTracks(1));
    EXPECT_NE(failure(test::deleteFileText("Macintosh HD:none:a.mp3")), "(no failure)");
    EXPECT_THAT(m_desktop.calls, ElementsAre());
}

TEST_F(EmbeddedScriptingTest, FilesHaveNoLock) {
    open(manyTracks(1));
    const std::string alias = "alias \"" + hfsPath(m_folder.write("a.mp3", "")).value() + "\"";
    EXPECT_EQ(run("tell application \"Finder\" to get locked of " + alias),
              Descriptor(Descriptor::Value(false)));
    EXPECT_THAT(failure("tell application \"Finder\" to set locked of " + alias + " to true"),
                HasSubstr("files cannot be locked here"));
}

/// A track that has a file of its ID's name.
test::FixtureTrack trackWithFile(int id, const std::string& persistentId) {
    return {id, persistentId, "<key>Location</key><string>file:///M/" + persistentId + ".mp3</string>"};
}

TEST_F(EmbeddedScriptingTest, NamesEveryFileOfTheLibrary) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    std::vector<std::string> seen;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view id, const std::string& path) {
        seen.push_back(std::string(id) + path);
        return true;
    }));
    EXPECT_THAT(seen, ElementsAre("A1/M/A1.mp3"));
    EXPECT_EQ(m_scripts->trackCount().value(), 1);
}

TEST_F(EmbeddedScriptingTest, NamesNoMoreFilesThanAreWanted) {
    open(libraryXml({trackWithFile(1, "A1"), trackWithFile(2, "A2")}, {}));
    int seen = 0;
    EXPECT_TRUE(m_scripts->forEachLocation([&](std::string_view, const std::string&) { return ++seen < 1; }));
    EXPECT_EQ(seen, 1);
}

TEST_F(EmbeddedScriptingTest, TextsRunWhileTheFilesAreNamed) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    std::string count;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view, const std::string&) {
        std::thread([&] { count = text(test::trackCountText); }).join();
        return true;
    }));
    EXPECT_EQ(count, "1");
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsReplacedMeanwhileHasItsNewFilesNamedToo) {
    open(libraryXml({trackWithFile(1, "A1"), trackWithFile(2, "A2")}, {}));
    std::vector<std::string> seen;
    ASSERT_TRUE(m_scripts->forEachLocation([&](std::string_view id, const std::string&) {
        if (seen.empty()) replaceLibrary(libraryXml({trackWithFile(1, "A1"), trackWithFile(3, "B3")}, {}));
        seen.emplace_back(id);
        return true;
    }));
    EXPECT_THAT(seen, ElementsAre("A1", "A2", "A1", "B3"));
}

TEST_F(EmbeddedScriptingTest, ALibraryThatIsReplacedAgainAndAgainCannotBeGoneThrough) {
    open(libraryXml({trackWithFile(1, "A1")}, {}));
    int passes = 0;
    const Result<void> done = m_scripts->forEachLocation([&](std::string_view, const std::string&) {
        replaceLibrary(libraryXml({trackWithFile(++passes, "A1")}, {}));
        return true;
    });
    ASSERT_FALSE(done);
    EXPECT_EQ(done.error().code, Error::Code::busy);
    EXPECT_EQ(passes, 3);
}

TEST_F(EmbeddedScriptingTest, TwoThreadsMaySendScripts) {
    open(manyTracks(200));
    const auto deleteFrom = [&](int first) {
        for (int n = first; n < 200; n += 2)
            EXPECT_TRUE(m_scripts->executeAndReturnError(test::deleteTrackText(persistentIdOf(n))));
    };
    std::thread other(deleteFrom, 0);
    deleteFrom(1);
    other.join();
    EXPECT_EQ(text(test::trackCountText), "0");
}

} // namespace
} // namespace songsweep
