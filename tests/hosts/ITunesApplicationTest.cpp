// SPDX-License-Identifier: MIT
#include "hosts/EmbeddedScriptingFixture.h"
#include "platform/HfsPath.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace songsweep {
namespace {

using test::contentOf;
using test::libraryXml;
using test::manyTracks;
using test::persistentIdOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using ITunesApplicationTest = test::EmbeddedScriptingFixture;

TEST_F(ITunesApplicationTest, AnswersTheQuestionsOfASearch) {
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

TEST_F(ITunesApplicationTest, OnlyTheApplicationCanBeActivated) {
    open(manyTracks(1));
    run("tell application \"iTunes\" to activate");
    EXPECT_NE(failure("tell application \"iTunes\" to activate track 1 of playlist 1"), "(no failure)");
}

TEST_F(ITunesApplicationTest, DeletingNothingIsAnError) {
    open(manyTracks(1));
    EXPECT_NE(failure("tell application \"iTunes\" to delete"), "(no failure)");
    EXPECT_EQ(text(test::trackCountText), "1");
}

TEST_F(ITunesApplicationTest, PlayingNothingIsAnError) {
    open(manyTracks(1));
    EXPECT_NE(failure("tell application \"iTunes\" to play"), "(no failure)");
    EXPECT_THAT(m_desktop.calls, ElementsAre());
}

TEST_F(ITunesApplicationTest, APlaylistNameThatBreaksTheTextFailsIt) {
    open(manyTracks(1));
    EXPECT_NE(failure(test::playlistIndexText("say \"hi\" to")), "(no failure)");
}

TEST_F(ITunesApplicationTest, AFileWithoutPlaylistsListsNoneAndStillCountsItsTracks) {
    open("<plist><dict><key>Tracks</key><dict><key>1</key><dict/><key>2</key><dict></dict></dict></dict></"
         "plist>");
    EXPECT_THAT(texts(run(test::userPlaylistNamesText)), ElementsAre());
    EXPECT_EQ(text(test::trackCountText), "2");
    EXPECT_EQ(text(test::playlistIndexText("Music")), "-1");
    EXPECT_TRUE(m_scripts->playlists().value().empty());
}

TEST_F(ITunesApplicationTest, ABatchGivesTheTwelveValuesOfEveryTrack) {
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

TEST_F(ITunesApplicationTest, TheLocationOfATrackIsItsPathOrMissing) {
    open(libraryXml(
        {{1, "A1", locationOf("one.mp3")}, {2, "A2", "<key>Location</key><string>file:///none</string>"}},
        {}));
    EXPECT_EQ(text(test::locationText("A1")), m_folder.pathOf("one.mp3"));
    EXPECT_EQ(text(test::locationText("A2")), "msng");
    EXPECT_EQ(run(test::locationText("A9")).stringValue(), std::nullopt); // An empty list in a list.
}

TEST_F(ITunesApplicationTest, ATrackWithoutAPersistentIdMatchesNoFilterOnIt) {
    open(libraryXml({{1, "", ""}, {2, "A2", ""}}, {}));
    for (const std::string operand : {"\"\"", "\"0\"", "\"msng\"", "missing value"})
        EXPECT_EQ(text("tell application \"iTunes\" to get count of (tracks whose persistent ID is " +
                       operand + ")"),
                  "0")
            << operand;
}

TEST_F(ITunesApplicationTest, AFilterFindsAllTracksOfAnId) {
    open(libraryXml(
        {{1, "A1", "<key>Name</key><string>x</string>"}, {2, "A1", "<key>Name</key><string>y</string>"}},
        {}));
    EXPECT_THAT(
        texts(run("tell application \"iTunes\" to get name of (tracks whose persistent ID is \"a1\")")),
        ElementsAre("x", "y"));
}

TEST_F(ITunesApplicationTest, OtherFiltersWalkTheTracks) {
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

TEST_F(ITunesApplicationTest, DeletesTracksAtOnceAndWritesThemTogether) {
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

TEST_F(ITunesApplicationTest, DeletingNothingIsNoError) {
    open(manyTracks(2));
    run(test::deleteTrackText("no such ID"));
    run("tell application \"iTunes\" to delete {}");
    EXPECT_EQ(m_scripts->pendingDeletions(), 0U);
}

TEST_F(ITunesApplicationTest, DeletesATrackByItsPlace) {
    open(manyTracks(3));
    run("tell application \"iTunes\" to delete track 2 of playlist 1");
    EXPECT_THAT(texts(run("tell application \"iTunes\" to get name of every track of playlist 1")),
                ElementsAre("Song 0 & more", "Song 2 & more"));
    EXPECT_THAT(failure("tell application \"iTunes\" to delete playlist 1"),
                HasSubstr("only tracks can be deleted"));
}

TEST_F(ITunesApplicationTest, AnswersUnderAllItsNames) {
    open(manyTracks(2));
    for (const std::string name :
         {"\"iTunes\"", "\"Music\"", "id \"com.apple.iTunes\"", "id \"com.apple.Music\""})
        EXPECT_EQ(text("tell application " + name + " to get count of tracks"), "2") << name;
    EXPECT_EQ(text("tell application id \"com.apple.finder\" to get name"), "Finder");
    EXPECT_THAT(failure("tell application \"Spotify\" to get version"),
                HasSubstr("no application “Spotify”"));
    EXPECT_THAT(failure("tell application id \"Music\" to get version"), HasSubstr("no application “Music”"));
}

TEST_F(ITunesApplicationTest, BringsNothingToTheFront) {
    open(manyTracks(1));
    run("tell application \"iTunes\" to activate");
    run("tell application \"Finder\" to activate");
    EXPECT_THAT(m_desktop.calls, ElementsAre());
    EXPECT_THAT(failure("tell application \"iTunes\" to activate track 1"),
                HasSubstr("only an application can be activated"));
    EXPECT_THAT(failure("tell application \"Finder\" to activate 5"),
                HasSubstr("only an application can be activated"));
}

TEST_F(ITunesApplicationTest, PlaysStopsAndMutes) {
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

TEST_F(ITunesApplicationTest, ATrackWithoutAFileIsNotPlayed) {
    open(libraryXml({{1, "A1", ""}}, {}));
    EXPECT_THAT(failure("tell application \"iTunes\" to play track 1"),
                HasSubstr("there is no file to play"));
    EXPECT_THAT(m_desktop.calls, IsEmpty());
}

} // namespace
} // namespace songsweep
