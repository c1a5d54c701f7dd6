// SPDX-License-Identifier: MIT
#include "app/ITunesQueries.h"

#include "app/FakeITunes.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ITunesQueriesTest : public ::testing::Test {
  protected:
    void failEverything() {
        iTunes.fails = [](const std::string&) { return true; };
    }

    FakeITunes iTunes;
    RecordingLog log;
    ITunesQueries queries{iTunes, log};
};

TEST_F(ITunesQueriesTest, TheFirstUserPlaylistIsTheMusicPlaylist) {
    iTunes.playlists = {"Library", "Party"};
    EXPECT_EQ(queries.getMusicPlaylistName(), "Library");
    EXPECT_THAT(iTunes.texts(),
                ElementsAre("tell application \"iTunes\" \nget name of every user playlist \nend tell"));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(ITunesQueriesTest, AFailedMusicPlaylistIsLogged) {
    failEverything();
    EXPECT_EQ(queries.getMusicPlaylistName(), std::nullopt);
    EXPECT_THAT(log.lines(), ElementsAre("Error occured"));
}

TEST_F(ITunesQueriesTest, UserPlaylistsAreListedAndLogged) {
    iTunes.playlists = {"Party", "Sleep"};
    EXPECT_THAT(queries.userPlaylistNames(), ElementsAre("Party", "Sleep"));
    EXPECT_THAT(
        iTunes.texts(),
        ElementsAre(
            "tell application \"iTunes\" \nget name of every user playlist whose smart is false \nend tell"));
    EXPECT_THAT(log.lines(), ElementsAre("User Playlist : Party", "User Playlist : Sleep"));
}

TEST_F(ITunesQueriesTest, AFailedListOfUserPlaylistsIsLogged) {
    failEverything();
    EXPECT_THAT(queries.userPlaylistNames(), IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("Error occured"));
}

TEST_F(ITunesQueriesTest, APlaylistNameThatWouldEndItsLiteralIsNotSent) {
    EXPECT_EQ(queries.getMusicLibraryInt("Best \"of\""), -1);
    EXPECT_EQ(queries.getMusicLibraryInt("AC\\DC"), -1);
    EXPECT_THAT(iTunes.texts(), IsEmpty());
}

TEST_F(ITunesQueriesTest, APathThatWouldEndItsLiteralIsEscaped) {
    queries.play("Disk:a\" \nback\\slash.mp3");
    EXPECT_THAT(iTunes.texts(), ElementsAre("tell application \"iTunes\" \nplay \"Disk:a\\\" \n"
                                            "back\\\\slash.mp3\" \nend tell"));
}

TEST_F(ITunesQueriesTest, ThePlaylistIndexIsTheFirstOfThatName) {
    iTunes.playlists = {"Library", "Party", "Party"};
    EXPECT_EQ(queries.getMusicLibraryInt("Party"), 2);
    EXPECT_EQ(queries.getMusicLibraryInt("Nowhere"), -1);
    EXPECT_EQ(
        iTunes.texts().front(),
        "tell application \"iTunes\" \nset tresult to -1 \nset tcount to count of playlist \nrepeat with i "
        "from 1 to tcount \nset tname to name of playlist [i] \nif tname = \"Party\" then \nset tresult to i "
        "\nexit repeat \nend if \nend repeat \n{tresult} \nend tell");
}

TEST_F(ITunesQueriesTest, AFailedIndexIsMinusOne) {
    failEverything();
    EXPECT_EQ(queries.getMusicLibraryInt("Party"), -1);
}

TEST_F(ITunesQueriesTest, TheTrackCountIsMinusOneWhenITunesDoesNotAnswer) {
    iTunes.trackCount = 1234;
    EXPECT_EQ(queries.getTracksCount(), 1234);
    failEverything();
    EXPECT_EQ(queries.getTracksCount(), -1);
    EXPECT_EQ(iTunes.texts().back(),
              "tell application \"iTunes\" \nget count of tracks of playlist 1 \nend tell");
}

TEST_F(ITunesQueriesTest, TheMajorVersionEndsAtTheFirstPoint) {
    iTunes.version = "9.2.1";
    EXPECT_EQ(queries.majorVersion(), 9);
    iTunes.version = "10.0";
    EXPECT_EQ(queries.majorVersion(), 10);
    iTunes.version = "12";
    EXPECT_EQ(queries.majorVersion(), 12);
    EXPECT_EQ(iTunes.texts().back(), "tell application \"iTunes\" \nget version \nend tell \n");
}

TEST_F(ITunesQueriesTest, AFailedVersionReadsAsZeroAndIsLogged) {
    failEverything();
    EXPECT_EQ(queries.majorVersion(), 0);
    EXPECT_THAT(log.lines(), ElementsAre("Error occured"));
}

TEST_F(ITunesQueriesTest, StopAndPlaySendTheirTexts) {
    queries.iTunesStop();
    queries.play("Macintosh HD:Music:song.mp3");
    EXPECT_THAT(iTunes.texts(),
                ElementsAre("tell application \"iTunes\" to stop",
                            "tell application \"iTunes\" \nplay \"Macintosh HD:Music:song.mp3\" \nend tell"));
}

} // namespace
} // namespace songsweep::test
