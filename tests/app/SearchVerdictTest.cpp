// SPDX-License-Identifier: MIT
#include "app/SearchVerdict.h"

#include <gmock/gmock.h>

namespace songsweep {
namespace {

using Playlist = SearchCoverage::Playlist;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr bool complete = true;
constexpr bool incomplete = false;

/// A search of the whole library that compared all of its tracks.
class SearchVerdictTest : public ::testing::Test {
  protected:
    SearchVerdictTest() {
        m_scope = {.playlist = "Music", .isLibrary = true, .libraryTracks = 12000, .listedTracks = 11000};
        m_scope.coverage.playlistTracks = 12000;
    }
    void expect(bool isComplete, const std::string& note) const {
        const SearchVerdict verdict = SearchVerdict::of(m_scope);
        EXPECT_EQ(verdict.isComplete, isComplete);
        EXPECT_THAT(verdict.notes, ElementsAre(note));
    }

    SearchScope m_scope;
};

TEST_F(SearchVerdictTest, SaysNothingOfASearchOfAllTracks) {
    EXPECT_EQ(SearchVerdict::of(m_scope), SearchVerdict());
    EXPECT_TRUE(SearchVerdict().isComplete);
}

TEST_F(SearchVerdictTest, CountsTheTracksThatCouldNotBeRead) {
    m_scope.coverage.unreadReason = "the entry of track 7 is not well formed";
    m_scope.coverage.unreadTracks = 1;
    expect(incomplete, "1 track could not be read: the entry of track 7 is not well formed");
    m_scope.coverage.unreadTracks = 3;
    expect(incomplete, "3 tracks could not be read: the entry of track 7 is not well formed");
    m_scope.listedTracks = 0;
    expect(incomplete, "3 tracks could not be read: the entry of track 7 is not well formed");
}

TEST_F(SearchVerdictTest, TellsWhatBrokeTheSearchOff) {
    m_scope.coverage.brokenOff = "out of memory";
    expect(incomplete, "the search broke off: out of memory");
}

TEST_F(SearchVerdictTest, TellsOfAPlaylistThatTheFileDoesNotHave) {
    m_scope.listedTracks = 0;
    m_scope.coverage = {.playlist = Playlist::none};
    expect(incomplete, "0 of 12000 tracks were searched: the library file has no playlist named “Music”");
    m_scope.playlist = "";
    expect(incomplete,
           "0 of 12000 tracks were searched: the library has no name by which it is found in its file");
    m_scope.playlist.reset();
    expect(incomplete, "0 of 12000 tracks were searched: the library file has no playlist to choose");
    m_scope.libraryTracks = 0;
    EXPECT_THAT(SearchVerdict::of(m_scope).notes, IsEmpty()) << "there is nothing to search";
}

TEST_F(SearchVerdictTest, TellsOfAPlaylistThatTookTheLibrarysPlace) {
    m_scope.listedTracks = 40;
    m_scope.coverage = {.playlist = Playlist::other, .playlistTracks = 50};
    expect(incomplete, "40 of 12000 tracks were searched: the first playlist named “Music” in the library "
                       "file is not the library");
    m_scope.isLibrary = false;
    EXPECT_EQ(SearchVerdict::of(m_scope), SearchVerdict()) << "a playlist is another one than the library";
}

TEST_F(SearchVerdictTest, TellsOfTracksThatTheLibrarysPlaylistLeavesOut) {
    m_scope.coverage.leftOutTracks = 1;
    expect(incomplete, "11000 of 12000 tracks were searched: the library's own playlist leaves out 1 track");
    m_scope.listedTracks = 0;
    m_scope.coverage.playlistTracks = 0;
    m_scope.coverage.leftOutTracks = 12000;
    expect(incomplete, "0 of 12000 tracks were searched: the library's own playlist leaves out 12000 tracks");
    m_scope.coverage.playlist = Playlist::none;
    expect(incomplete, "0 of 12000 tracks were searched: the library file has no playlist named “Music”");
}

TEST_F(SearchVerdictTest, LetsAPlaylistOfTheUserLeaveTracksOut) {
    m_scope.isLibrary = false;
    m_scope.coverage.leftOutTracks = 1000;
    EXPECT_EQ(SearchVerdict::of(m_scope), SearchVerdict());
}

TEST_F(SearchVerdictTest, TellsWhyNothingWasCompared) {
    m_scope.listedTracks = 0;
    expect(complete, "0 of 12000 tracks were searched: none that the library lists is a file to be searched");
    m_scope.isLibrary = false;
    m_scope.playlist = "Streams";
    expect(complete,
           "0 of 12000 tracks were searched: none that the playlist “Streams” lists is a file to be "
           "searched");
    m_scope.coverage.playlistTracks = 0;
    expect(complete, "0 of 12000 tracks were searched: the playlist “Streams” lists none");
    m_scope.libraryTracks = 0;
    EXPECT_THAT(SearchVerdict::of(m_scope).notes, IsEmpty());
}

} // namespace
} // namespace songsweep
