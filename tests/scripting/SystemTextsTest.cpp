// SPDX-License-Identifier: MIT
#include "support/SystemTexts.h"

#include "platform/HfsPath.h"
#include "scripting/FakeApplications.h"
#include "scripting/InterpretedAppleScript.h"
#include "scripting/SourceNotation.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

/// Runs the texts that the program sends, against a library of three tracks.
class SystemTextsTest : public testing::Test {
  protected:
    SystemTextsTest() {
        m_world.playlists = {{"Library", true, true, {}},
                             {"Music", false, false, {}},
                             {"Rock", false, true, {}},
                             {"Top", true, true, {}}};
        m_world.playlists[0].tracks = {test::fakeTrack("One", "00A1", "/music/one.mp3", 1),
                                       test::fakeTrack("Two \"2\"", "00A2", ""),
                                       test::fakeTrack("Three", "00A3", "/music/a:b.mp3")};
        m_world.playlists[2].tracks = {m_world.playlists[0].tracks[2], m_world.playlists[0].tracks[0]};
    }

    Result<Descriptor> run(const std::string& text) {
        InterpretedAppleScript script(test::fakeApplications(m_world));
        return script.executeAndReturnError(text);
    }

    /// The result in source notation; a failure makes the test fail.
    std::string resultOf(const std::string& text) {
        const Result<Descriptor> result = run(text);
        if (result) return sourceNotation(result.value());
        ADD_FAILURE() << result.error().message;
        return {};
    }

    test::FakeWorld m_world;
};

TEST_F(SystemTextsTest, NamesEveryUserPlaylist) {
    EXPECT_EQ(resultOf(test::userPlaylistNamesText), R"({"Library", "Rock", "Top"})");
}

TEST_F(SystemTextsTest, NamesUserPlaylistsThatAreNotSmart) {
    EXPECT_EQ(resultOf(test::plainPlaylistNamesText), R"({"Rock"})");
}

TEST_F(SystemTextsTest, FindsThePlaceOfAPlaylistByItsName) {
    EXPECT_EQ(resultOf(test::playlistIndexText("Rock")), "{3}");
    const Result<Descriptor> result = run(test::playlistIndexText("rock"));
    ASSERT_TRUE(result);
    EXPECT_EQ(result.value().stringValue(), "3");
}

TEST_F(SystemTextsTest, AnswersMinusOneForAnUnknownPlaylist) {
    EXPECT_EQ(resultOf(test::playlistIndexText("Jazz")), "{-1}");
}

TEST_F(SystemTextsTest, TakesTheFirstOfTwoPlaylistsOfOneName) {
    m_world.playlists.push_back({"Rock", false, true, {}});
    EXPECT_EQ(resultOf(test::playlistIndexText("Rock")), "{3}");
}

TEST_F(SystemTextsTest, FailsForAPlaylistNameThatBreaksTheText) {
    const Result<Descriptor> result = run(test::playlistIndexText("12\" singles"));
    ASSERT_FALSE(result);
    EXPECT_TRUE(result.error().message.starts_with("line 6, column ")) << result.error().message;
}

TEST_F(SystemTextsTest, CountsTheTracksOfTheLibrary) {
    EXPECT_EQ(resultOf(test::trackCountText), "3");
    EXPECT_EQ(m_world.elementsTaken, 1) << "the playlist, and no track";
}

TEST_F(SystemTextsTest, GivesTheVersion) { EXPECT_EQ(resultOf(test::versionText), R"("12.0")"); }

TEST_F(SystemTextsTest, StopsThePlayer) {
    EXPECT_TRUE(run(test::stopText));
    EXPECT_EQ(m_world.commands, std::vector<std::string>{"stop"});
}

TEST_F(SystemTextsTest, CountsTheTracksOfAPlaylist) {
    EXPECT_EQ(resultOf(test::playlistTrackCountText(3)), "2");
}

TEST_F(SystemTextsTest, ReadsABatchOfTracks) {
    const Result<Descriptor> result = run(test::batchText(1, 1, 3));
    ASSERT_TRUE(result) << result.error().message;
    ASSERT_EQ(result.value().numberOfItems(), 1);
    const Descriptor& records = *result.value().descriptorAtIndex(1);
    ASSERT_EQ(records.numberOfItems(), 3);
    const Descriptor& first = *records.descriptorAtIndex(1);
    ASSERT_EQ(first.numberOfItems(), 12);
    EXPECT_EQ(first.descriptorAtIndex(1)->stringValue(), "One");
    EXPECT_EQ(first.descriptorAtIndex(4)->stringValue(), "4:05");
    EXPECT_EQ(first.descriptorAtIndex(5)->stringValue(), "192");
    EXPECT_EQ(first.descriptorAtIndex(6)->stringValue(), "1048576");
    EXPECT_EQ(first.descriptorAtIndex(7)->data().size(), 8U);
    EXPECT_EQ(first.descriptorAtIndex(8)->int32Value(), 60);
    EXPECT_EQ(first.descriptorAtIndex(9)->stringValue(), "00A1");
    EXPECT_EQ(first.descriptorAtIndex(10)->stringValue(), "7");
    EXPECT_EQ(first.descriptorAtIndex(11)->stringValue(), "/music/one.mp3");
    EXPECT_EQ(first.descriptorAtIndex(12)->numberOfItems(), 1);
    EXPECT_EQ(records.descriptorAtIndex(3)->descriptorAtIndex(12)->numberOfItems(), 0);
}

TEST_F(SystemTextsTest, ReadsTheMissingLocationOfATrackAsMsng) {
    const Result<Descriptor> result = run(test::batchText(1, 2, 2));
    ASSERT_TRUE(result) << result.error().message;
    const Descriptor& record = *result.value().descriptorAtIndex(1)->descriptorAtIndex(1);
    EXPECT_EQ(record.descriptorAtIndex(11)->stringValue(), "msng");
    EXPECT_EQ(record.descriptorAtIndex(1)->stringValue(), "Two \"2\"");
}

TEST_F(SystemTextsTest, FailsForABatchBeyondTheEnd) {
    const Result<Descriptor> result = run(test::batchText(1, 3, 4));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().message, "line 5, column 22: there is no track 4");
}

TEST_F(SystemTextsTest, RefreshesALocationByPersistentId) {
    const Result<Descriptor> result = run(test::locationText("00A3"));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(result.value().stringValue(), "/music/a:b.mp3");
}

TEST_F(SystemTextsTest, RefreshesAMissingLocationToMsng) {
    const Result<Descriptor> result = run(test::locationText("00A2"));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(result.value().stringValue(), "msng");
}

TEST_F(SystemTextsTest, GivesNoTextForTheLocationOfAnUnknownTrack) {
    const Result<Descriptor> result = run(test::locationText("FFFF"));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(sourceNotation(result.value()), "{{}}");
    EXPECT_EQ(result.value().stringValue(), std::nullopt);
}

TEST_F(SystemTextsTest, AsksTheIndexForAPersistentIdAndWalksNoTracks) {
    EXPECT_TRUE(run(test::locationText("00A3")));
    EXPECT_EQ(m_world.candidatesAsked, 1);
    EXPECT_EQ(m_world.elementsTaken, 0);
    EXPECT_EQ(m_world.propertiesRead, 1) << "the location";
}

TEST_F(SystemTextsTest, FindsAPersistentIdByAWalkWhereThereIsNoIndex) {
    m_world.hasIndex = false;
    const Result<Descriptor> result = run(test::locationText("00a3"));
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(result.value().stringValue(), "/music/a:b.mp3");
    EXPECT_EQ(m_world.elementsTaken, 3);
}

TEST_F(SystemTextsTest, PlaysAFileByItsHfsPath) {
    EXPECT_TRUE(run(test::playText("Macintosh HD:Music:a/b.mp3")));
    EXPECT_EQ(m_world.commands, std::vector<std::string>{"play Macintosh HD:Music:a/b.mp3"});
}

TEST_F(SystemTextsTest, MutesAndUnmutes) {
    EXPECT_TRUE(run(test::muteText));
    EXPECT_TRUE(run(test::unmuteText));
    const std::vector<std::string> expected{"set volume output muted true", "set volume output muted false"};
    EXPECT_EQ(m_world.commands, expected);
}

TEST_F(SystemTextsTest, DeletesTracksByPersistentId) {
    EXPECT_TRUE(run(test::deleteTrackText("00A2")));
    EXPECT_EQ(m_world.commands, std::vector<std::string>{"delete { track id 00A2}"});
    EXPECT_EQ(m_world.elementsTaken, 0);
}

TEST_F(SystemTextsTest, UnlocksAndDeletesAFile) {
    const std::string path = "/Users/ann/Größe a:b.mp3";
    m_world.lockedFiles[path] = true;
    EXPECT_TRUE(run(test::deleteFileText(*hfsPath(path))));
    EXPECT_FALSE(m_world.lockedFiles[path]);
    EXPECT_EQ(m_world.commands, std::vector<std::string>{"delete " + path});
}

TEST_F(SystemTextsTest, FailsToDeleteAFileThatIsNotThere) {
    const Result<Descriptor> result = run(test::deleteFileText(*hfsPath("/gone.mp3")));
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().code, Error::Code::notFound);
    EXPECT_TRUE(m_world.commands.empty());
}

} // namespace
} // namespace songsweep
