// SPDX-License-Identifier: MIT
#include "library/LibraryWalk.h"

#include "library/PlaylistItems.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Playlist = SearchCoverage::Playlist;

/// How a key and its value come.
enum class Properties { inNodes, whole };

/// Feeds a walk by hand, in the words of a library file.
class LibraryWalkTest : public testing::TestWithParam<Properties> {
  protected:
    void open(std::string_view name) { m_walk.feed(NodeType::element, name, {}); }
    void close(std::string_view name) { m_walk.feed(NodeType::endElement, name, {}); }
    void text(std::string_view value) { m_walk.feed(NodeType::text, {}, value); }
    void key(std::string_view name) {
        open("key");
        text(name);
        close("key");
    }
    void value(std::string_view name, std::string_view value) {
        if (GetParam() == Properties::whole) {
            const bool isBlank = value.find_first_not_of(" \t\n") == std::string_view::npos;
            m_walk.feed(XmlProperty{libraryKey(name), isBlank ? std::string_view() : value});
            return;
        }
        key(name);
        open("string");
        text(value);
        close("string");
    }
    void openTracks() {
        open("plist");
        open("dict");
        key("Tracks");
        open("dict");
    }
    void openTrack(std::string_view trackId) {
        key(trackId);
        open("dict");
        value("Track ID", trackId);
    }
    void track(std::string_view trackId, std::string_view name) {
        openTrack(trackId);
        value("Name", name);
        close("dict");
    }
    void openPlaylists() {
        close("dict"); // of the tracks
        key("Playlists");
        open("array");
    }
    void playlist(std::string_view name, std::initializer_list<const char*> trackIds) {
        open("dict");
        value("Name", name);
        items(trackIds);
        close("dict");
    }
    void items(std::initializer_list<const char*> trackIds) {
        key("Playlist Items");
        open("array");
        for (const char* trackId : trackIds) {
            open("dict");
            value("Track ID", trackId);
            close("dict");
        }
        close("array");
    }

    void openMaster(std::string_view name) {
        open("dict");
        value("Name", name);
        key("Master");
        open("true");
        close("true");
    }

    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const TrackRecord* record : m_list.records)
            found.push_back(record->name.string());
        return found;
    }

    test::RecordingLog m_log;
    TrackList m_list;
    PlaylistItems m_songlist;
    std::vector<int> m_progress;
    LibraryWalk m_walk{m_list, m_songlist, "My Music", m_log,
                       [this](int count) { m_progress.push_back(count); }};
};

INSTANTIATE_TEST_SUITE_P(Properties, LibraryWalkTest, testing::Values(Properties::inNodes, Properties::whole),
                         [](const auto& way) {
                             return way.param == Properties::whole ? "Whole" : "InNodes";
                         });

TEST_P(LibraryWalkTest, MakesARecordOfEachTrack) {
    openTracks();
    track("10", "One");
    track("12", "Two");
    EXPECT_THAT(names(), ElementsAre("One", "Two"));
    EXPECT_EQ(m_list.records[1]->trackid, "12");
    EXPECT_EQ(m_walk.trackCount(), 2);
}

TEST_P(LibraryWalkTest, IgnoresValuesBeforeTheFirstTrack) {
    open("plist");
    open("dict");
    value("Name", "of no track");
    key("Tracks");
    open("dict");
    track("1", "One");
    EXPECT_THAT(names(), ElementsAre("One"));
}

TEST_P(LibraryWalkTest, IgnoresTextBeforeTheFirstElement) {
    text("stray");
    EXPECT_THAT(m_list.records, IsEmpty());
}

TEST_P(LibraryWalkTest, TrimsValues) {
    openTracks();
    track("1", "\n  One and \u00a0Two\u3000\t");
    EXPECT_THAT(names(), ElementsAre("One and \u00a0Two"));
}

TEST_P(LibraryWalkTest, KeysCountInAnyCaseButWithTheirBlanks) {
    openTracks();
    openTrack("1");
    value("NAME", "One");
    value(" Artist", "nobody");
    EXPECT_EQ(m_list.records[0]->name, "One");
    EXPECT_EQ(m_list.records[0]->artist, "");
}

TEST_P(LibraryWalkTest, JoinsTextThatComesInPiecesEachTrimmed) {
    openTracks();
    openTrack("1");
    key("Name");
    open("string");
    text("Rock ");
    text("&");
    text(" Roll");
    close("string");
    key("Play Count");
    open("integer");
    text("1");
    text("2");
    m_walk.finish();
    EXPECT_EQ(m_list.records[0]->name, "Rock&Roll");
    EXPECT_EQ(m_list.records[0]->playcount, "2");
}

TEST_P(LibraryWalkTest, OfAKeyInPiecesTheLastCounts) {
    openTracks();
    openTrack("1");
    open("key");
    text("Album ");
    text("Name");
    close("key");
    open("string");
    text("One");
    EXPECT_EQ(m_list.records[0]->name, "One");
}

TEST_P(LibraryWalkTest, AnEmptyKeyElementLeavesTheKeyBefore) {
    openTracks();
    openTrack("1");
    value("Name", "One");
    open("key");
    close("key");
    open("string");
    text("Two");
    m_walk.finish();
    EXPECT_EQ(m_list.records[0]->name, "OneTwo");
}

TEST_P(LibraryWalkTest, TextAfterAnEndOfElementStillBelongsToTheElementOpenedLast) {
    openTracks();
    openTrack("1");
    key("Name");
    text("taken for a key"); // no element was opened since "key"
    open("string");
    text("One");
    EXPECT_EQ(m_list.records[0]->name, "");
}

TEST_P(LibraryWalkTest, ASelfClosingDictRaisesTheDepthForTheRestOfTheFile) {
    openTracks();
    openTrack("1");
    key("Extras");
    open("dict"); // a self-closing one has no end
    close("dict");
    track("2", "swallowed by the first record");
    EXPECT_EQ(m_walk.trackCount(), 1);
    EXPECT_EQ(m_list.records[0]->trackid, "2");
}

TEST_P(LibraryWalkTest, TellsOfEvery500thRecord) {
    openTracks();
    for (int i = 0; i < 1100; ++i)
        track("1", "x");
    EXPECT_THAT(m_progress, ElementsAre(500, 500));
    EXPECT_EQ(m_walk.trackCount(), 1100);
}

TEST_P(LibraryWalkTest, CollectsTheItemsOfTheChosenPlaylistInAnyCase) {
    openTracks();
    track("1", "One");
    openPlaylists();
    playlist("Library", {"1", "2"});
    playlist(" MY music\n", {"3", "4"});
    playlist("Other", {"5"});
    EXPECT_THAT(m_songlist.left(), ElementsAre("3", "4"));
    EXPECT_THAT(m_log.lines(), ElementsAre("Playlists Begin", "Music Playlist End", "Music Playlist Begin",
                                           "Music Playlist End"));
}

TEST_P(LibraryWalkTest, OfTwoPlaylistsOfTheNameTheFirstCounts) {
    openTracks();
    openPlaylists();
    playlist("My Music", {"1"});
    playlist("my music", {"2"});
    EXPECT_THAT(m_songlist.left(), ElementsAre("1"));
}

TEST_P(LibraryWalkTest, APlaylistWithoutANameContinuesTheOneBefore) {
    openTracks();
    openPlaylists();
    playlist("My Music", {"1"});
    open("dict");
    items({"2"});
    close("dict");
    EXPECT_THAT(m_songlist.left(), ElementsAre("1", "2"));
}

TEST_P(LibraryWalkTest, CollectsNothingBeforeThePlaylistsKey) {
    openTracks();
    close("dict");
    key("Music Folder");
    open("array");
    playlist("My Music", {"1"});
    EXPECT_THAT(m_songlist.left(), IsEmpty());
    EXPECT_THAT(m_log.lines(), IsEmpty());
}

TEST_P(LibraryWalkTest, TheNextTopLevelKeyEndsThePlaylists) {
    openTracks();
    openPlaylists();
    playlist("Other", {"1"});
    close("array");
    key("Playlists"); // once more is no end
    key("Music Folder");
    open("array");
    playlist("My Music", {"2"});
    EXPECT_THAT(m_songlist.left(), IsEmpty());
    EXPECT_THAT(m_log.lines(),
                ElementsAre("Playlists Begin", "Music Playlist End", "Playlists Begin", "Playlists End"));
}

TEST_P(LibraryWalkTest, TrackValuesAfterTheTracksAreNotStored) {
    openTracks();
    track("1", "One");
    close("dict");
    value("Name", "Two");
    open("dict");
    open("dict");
    value("Name", "Three");
    m_walk.finish();
    EXPECT_THAT(names(), ElementsAre("One"));
}

TEST_P(LibraryWalkTest, AFirstDictionaryWithoutAChildDoesNotEndTheTracks) {
    open("plist");
    open("dict");
    close("dict");
    openTracks();
    track("1", "One");
    EXPECT_THAT(names(), ElementsAre("One"));
}

TEST_P(LibraryWalkTest, ALibraryWithoutTracksHasPlaylists) {
    openTracks();
    openPlaylists();
    playlist("My Music", {"1"});
    EXPECT_EQ(m_walk.trackCount(), 0);
    EXPECT_THAT(m_songlist.left(), ElementsAre("1"));
}

TEST_P(LibraryWalkTest, WithoutAPlaylistNameNothingIsCollected) {
    PlaylistItems songlist;
    LibraryWalk walk(m_list, songlist, std::nullopt, m_log, [](int) {});
    const auto feed = [&](NodeType type, std::string_view text) { walk.feed(type, text, text); };
    for (const char* name : {"dict", "dict"})
        feed(NodeType::element, name);
    feed(NodeType::endElement, "dict");
    feed(NodeType::element, "key");
    feed(NodeType::text, "Playlists");
    feed(NodeType::element, "dict");
    feed(NodeType::element, "key");
    feed(NodeType::text, "Name");
    feed(NodeType::element, "string");
    feed(NodeType::text, "  ");
    EXPECT_THAT(m_log.lines(), ElementsAre("Playlists Begin", "Music Playlist End"));
}

TEST_P(LibraryWalkTest, OtherNodesAreSkipped) {
    openTracks();
    openTrack("1");
    key("Name");
    open("string");
    for (const int type : {0, 2, 4, 5, 7, 8, 10, 13, 14})
        m_walk.feed(static_cast<NodeType>(type), "dict", "skipped");
    text("One");
    EXPECT_THAT(names(), ElementsAre("One"));
    EXPECT_EQ(m_walk.trackCount(), 1);
}

TEST_P(LibraryWalkTest, ADateThatIsNoneEndsTheWalk) {
    openTracks();
    openTrack("1");
    key("Date Added");
    open("date");
    EXPECT_THROW(text("someday"), std::runtime_error);
}

TEST_P(LibraryWalkTest, TellsWhetherItMetThePlaylist) {
    EXPECT_EQ(m_walk.playlist(), Playlist::none);
    openTracks();
    openPlaylists();
    playlist("Another", {"1"});
    EXPECT_EQ(m_walk.playlist(), Playlist::none);
    playlist("My Music", {"1"});
    EXPECT_EQ(m_walk.playlist(), Playlist::chosen) << "no playlist is marked as the library";
}

TEST_P(LibraryWalkTest, KnowsTheLibraryByItsMark) {
    openTracks();
    openPlaylists();
    openMaster("My Music");
    close("dict");
    playlist("My Music", {"1"});
    EXPECT_EQ(m_walk.playlist(), Playlist::chosen);
}

TEST_P(LibraryWalkTest, KnowsAPlaylistThatComesBeforeTheLibrary) {
    openTracks();
    openPlaylists();
    playlist("My Music", {"1"});
    EXPECT_EQ(m_walk.playlist(), Playlist::chosen);
    openMaster("My Music");
    close("dict");
    EXPECT_EQ(m_walk.playlist(), Playlist::other);
}

TEST_P(LibraryWalkTest, KnowsTheMarkBeforeTheNameToo) {
    openTracks();
    openPlaylists();
    playlist("Another", {});
    open("dict");
    key("Master");
    open("true");
    close("true");
    value("Name", "My Music");
    close("dict");
    EXPECT_EQ(m_walk.playlist(), Playlist::chosen);
}

TEST_P(LibraryWalkTest, TakesNoMarkOfTheNextPlaylist) {
    openTracks();
    openPlaylists();
    playlist("My Music", {"1"});
    open("dict");
    key("Master");
    open("true");
    close("true");
    value("Name", "Library");
    close("dict");
    EXPECT_EQ(m_walk.playlist(), Playlist::other);
}

TEST_P(LibraryWalkTest, TakesNoMarkOfAnItem) {
    openTracks();
    openPlaylists();
    playlist("My Music", {});
    open("dict");
    value("Name", "Another");
    key("Playlist Items");
    open("array");
    open("dict");
    key("Master");
    EXPECT_EQ(m_walk.playlist(), Playlist::chosen);
}

} // namespace
} // namespace songsweep
