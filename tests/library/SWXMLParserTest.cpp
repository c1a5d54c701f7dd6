// SPDX-License-Identifier: MIT
#include "library/ReaderFixture.h"
#include "library/ValueFormats.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

constexpr std::int32_t fiveTracks = 5;

class SWXMLParserTest : public test::ReaderFixture {
  protected:
    /// The library of five tracks, with the files of two of them.
    void useFiveTracks() {
        useLibrary("five-tracks.xml");
        write("Don't Stop & Go.mp3", "x");
        write("Björk.mp3", "x");
    }
    static SearchParameters all() { return {.playlist = "library"}; }

    TrackRecord& record(std::size_t index) const { return *m_list->records.at(index); }
};

TEST_F(SWXMLParserTest, ReadsTheFileTracksOfThePlaylist) {
    useFiveTracks();
    run(all(), fiveTracks);
    EXPECT_THAT(names(), ElementsAre("Don't Stop & Go", "Björk in the Past", "Gone"));
    const TrackRecord& first = record(0);
    EXPECT_EQ(first.artist, "Sigur Rós");
    EXPECT_EQ(first.album, "( )");
    EXPECT_EQ(first.timev, 188);
    EXPECT_EQ(first.time, "3:08");
    EXPECT_EQ(first.bitrate, "256");
    EXPECT_EQ(first.size, "5242880");
    EXPECT_EQ(sizestring(first), "5.1 MB");
    EXPECT_EQ(first.rating, 4);
    EXPECT_EQ(first.pid, "6B0F3E1C22C4A9D7");
    EXPECT_EQ(first.gid, 0);
    EXPECT_EQ(first.playcount, "12");
    EXPECT_EQ(first.location, path("Don't Stop & Go.mp3"));
    EXPECT_EQ(first.dateaddedv, 1237043366);
    EXPECT_TRUE(first.hasartwork);
    EXPECT_TRUE(first.isfile);
    EXPECT_FALSE(first.isdead);
    EXPECT_EQ(first.trackid, "101");
    EXPECT_TRUE(first.fromlibraryfile);
}

TEST_F(SWXMLParserTest, KeepsInitialValuesWhereTheLibraryHasNone) {
    useFiveTracks();
    run(all(), fiveTracks);
    const TrackRecord& gone = record(2);
    EXPECT_EQ(gone.playcount, "0");
    EXPECT_EQ(gone.rating, 0);
    EXPECT_EQ(gone.time, "");
    EXPECT_EQ(gone.dateaddedv, 0);
    EXPECT_EQ(dateadded(gone), "");
    EXPECT_EQ(record(1).size, "3221225472");
}

TEST_F(SWXMLParserTest, LogsAndPostsInThisOrder) {
    useFiveTracks();
    run(all(), fiveTracks);
    EXPECT_THAT(traceWithoutSeconds(),
                ElementsAre("XML Parsing",                                  //
                            "iTunes library file : " + path("library.xml"), //
                            "> xmlModifiedDate",                            //
                            "Begin Parse XML",                              //
                            "Playlists Begin",                              //
                            "Music Playlist Begin",                         //
                            "Music Playlist End",                           //
                            "Music Playlist End",                           //
                            "Playlists End",                                //
                            "End Parse XML",                                //
                            "> xmlDoneParsing",                             //
                            "Songs count in Music playlist Begin: 5",       //
                            "Begin Processing List",                        //
                            path("gone.mp3"),                               //
                            "End Processing List",                          //
                            "Songs count in Music playlist End: 1",         //
                            "Finish, track count: 5, list count: 3",        //
                            "> addFinish",                                  //
                            "Begin XML Finally",                            //
                            "End XML Finally"));
    EXPECT_THAT(m_trace.at(m_trace.size() - 4),
                MatchesRegex("Finish, track count: 5, list count: 3, time consumed: [0-9]+\\.[0-9]{6}"));
}

TEST_F(SWXMLParserTest, TellsTheFilesModificationDate) {
    useFiveTracks();
    run(all(), fiveTracks);
    ASSERT_EQ(m_modifiedDates.size(), 1U);
    EXPECT_EQ(m_modifiedDates[0], m_files.attributes(path("library.xml")));
}

TEST_F(SWXMLParserTest, FlagsMissingFilesWhereTheyAreKept) {
    useFiveTracks();
    run(all(), fiveTracks);
    EXPECT_FALSE(record(0).isdead);
    EXPECT_FALSE(record(1).isdead);
    EXPECT_TRUE(record(2).isdead);
    EXPECT_EQ(record(2).location, path("gone.mp3"));
}

TEST_F(SWXMLParserTest, DropsMissingFilesWhereTheyAreIgnoredWithoutALog) {
    useFiveTracks();
    run({.isignoredead = true, .playlist = "Library"}, fiveTracks);
    EXPECT_THAT(names(), ElementsAre("Don't Stop & Go", "Björk in the Past"));
    EXPECT_THAT(m_trace, testing::Not(testing::Contains(path("gone.mp3"))));
    EXPECT_EQ(m_scripts.sources.size(), 1U);
}

TEST_F(SWXMLParserTest, TracksOfAnotherTypeAreDroppedThoughThePlaylistHasThem) {
    useFiveTracks();
    run(all(), fiveTracks);
    EXPECT_THAT(names(), testing::Not(testing::Contains("Radio")));
}

TEST_F(SWXMLParserTest, OfTwoPlaylistsOfTheNameTheFirstCountsAndAnItemListedTwiceAdmitsOnce) {
    useFiveTracks();
    run({.playlist = "favourites"}, fiveTracks);
    EXPECT_THAT(names(), ElementsAre("Björk in the Past"));
    EXPECT_THAT(m_trace, testing::Contains("Songs count in Music playlist Begin: 2"));
    EXPECT_THAT(m_trace, testing::Contains("Songs count in Music playlist End: 1"));
}

TEST_F(SWXMLParserTest, CountsTheFileTracksThatThePlaylistLeavesOut) {
    useFiveTracks();
    run(all(), fiveTracks);
    EXPECT_EQ(m_list->coverage.leftOutTracks, 1);
    m_list = std::make_shared<TrackList>();
    run({.playlist = "favourites"}, fiveTracks);
    EXPECT_EQ(m_list->coverage.leftOutTracks, 3) << "the stream that it leaves out is no file";
}

TEST_F(SWXMLParserTest, APlaylistThatDoesNotExistAdmitsNoTrack) {
    useFiveTracks();
    run({.playlist = "nowhere"}, fiveTracks);
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlDoneParsing", "addFinish"));
}

TEST_F(SWXMLParserTest, WithoutAChosenPlaylistNoTrackIsAdmitted) {
    useFiveTracks();
    run({}, fiveTracks);
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(SWXMLParserTest, ALibraryWithoutPlaylistsAdmitsNoTrack) {
    useLibrary("no-playlists.xml");
    run(all(), 1);
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlDoneParsing", "addFinish"));
}

TEST_F(SWXMLParserTest, ATrackMoreOrLessThanITunesReportsFailsTheWholeRead) {
    useFiveTracks();
    for (const std::int32_t reported : {fiveTracks - 1, fiveTracks + 1, 0}) {
        m_trace.clear();
        run(all(), reported);
        EXPECT_THAT(m_list->records, IsEmpty());
        EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlErrorParsing"));
        EXPECT_EQ(m_trace.at(9), "End Parse XML");
        EXPECT_EQ(m_trace.at(10), "trackCount (5) != trueTrackCount (" + std::to_string(reported) + ")");
    }
}

TEST_F(SWXMLParserTest, TracksOfOtherIdsThanITunesHasFailTheWholeRead) {
    useFiveTracks();
    std::vector<std::string> asked;
    m_services.areTracksOfITunes = [&](const std::vector<TrackRecord*>& records) {
        for (const TrackRecord* record : records)
            asked.push_back(record->trackid.string());
        return false;
    };
    run(all(), fiveTracks);
    EXPECT_THAT(asked, ElementsAre("101", "103", "105", "107", "109")) << "all, in the order of the file";
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlErrorParsing"));
    EXPECT_EQ(m_trace.at(10), "The persistent IDs are not those of iTunes");
}

TEST_F(SWXMLParserTest, TheFirstReadErrorIsToldOnceAndTheWalkGoesOnUntilItIsCancelled) {
    useLibraryText("<plist>\n<dict>\n<key>Tracks</wrong>");
    SWXMLParser parser(m_list, all(), 1, 0, false, 5, 10, m_services);
    int rests = 0;
    m_sleeper.onSleep = [&] {
        if (++rests == 3) parser.cancel();
    };
    run(parser);
    EXPECT_EQ(rests, 3);
    ASSERT_EQ(m_readErrors.size(), 1U);
    EXPECT_EQ(m_readErrors.front().line, 3);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "addCancel"));
}

TEST_F(SWXMLParserTest, ADateThatIsNoneFailsTheReading) {
    useLibrary("bad-date.xml");
    run(all(), 1);
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_THAT(m_trace, ElementsAre("XML Parsing", "iTunes library file : " + path("library.xml"),
                                     "> xmlModifiedDate", "Begin Parse XML",
                                     "Parse XML exception [reason] : \"someday\" is no date",
                                     "Parse XML exception [userInfo] : (null)", "> xmlErrorParsing",
                                     "Begin XML Finally", "End XML Finally"));
}

TEST_F(SWXMLParserTest, ALocationThatIsNoUrlFailsTheProcessing) {
    useLibrary("bad-location.xml");
    run({.playlist = "All"}, 2);
    EXPECT_THAT(m_list->records, IsEmpty());
    const test::Trace last(m_trace.end() - 6, m_trace.end());
    EXPECT_THAT(last, ElementsAre("Exception occured",
                                  "Parse XML exception [reason] : the location of track 1 is no URL",
                                  "Parse XML exception [userInfo] : (null)", "> xmlErrorProcessing",
                                  "Begin XML Finally", "End XML Finally"));
}

TEST_F(SWXMLParserTest, ALocationThatIsNoUrlIsNoMatterOutsideThePlaylist) {
    useLibrary("bad-location.xml");
    run({.playlist = "Good"}, 2);
    ASSERT_EQ(m_list->records.size(), 1U);
    EXPECT_EQ(record(0).location, "/a b.mp3");
    EXPECT_EQ(events().back(), "addFinish");
}

TEST_F(SWXMLParserTest, ProgressComesBy500InBothPhases) {
    std::string tracks;
    std::string items;
    for (int i = 1; i <= 1250; ++i) {
        const std::string number = std::to_string(i);
        tracks += "<key>" + number + "</key><dict><key>Track ID</key><integer>" + number +
                  "</integer><key>Track Type</key><string>File</string></dict>\n";
        if (i % 2 == 0) items += "<dict><key>Track ID</key><integer>" + number + "</integer></dict>\n";
    }
    useLibraryText("<plist><dict><key>Tracks</key><dict>" + tracks +
                   "</dict><key>Playlists</key><array><dict><key>Name</key><string>All</string>"
                   "<key>Playlist Items</key><array>" +
                   items + "</array></dict></array></dict></plist>");
    run({.playlist = "All"}, 1250);
    EXPECT_EQ(m_list->records.size(), 625U);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "progressx 500", "progressx 500", "xmlDoneParsing",
                                      "progressx 500", "addFinish"));
}

TEST_F(SWXMLParserTest, ACancelDuringTheReadingEndsItWithNoOtherEvent) {
    useFiveTracks();
    m_onEvent = [](const WorkerEvent& event, SWXMLParser& parser) {
        if (event.name == EventName::xmlModifiedDate) parser.cancel();
    };
    run(all(), fiveTracks);
    EXPECT_THAT(m_trace, ElementsAre("XML Parsing", "iTunes library file : " + path("library.xml"),
                                     "> xmlModifiedDate", "Begin Parse XML", "Begin XML Finally",
                                     "> addCancel", "End XML Finally"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(SWXMLParserTest, ACancelDuringTheProcessingStillEndsWithBothEvents) {
    useFiveTracks();
    m_onEvent = [](const WorkerEvent& event, SWXMLParser& parser) {
        if (event.name == EventName::xmlDoneParsing) parser.cancel();
    };
    run(all(), fiveTracks);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlDoneParsing", "addFinish", "addCancel"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(SWXMLParserTest, ACancelledOperationStillPostsItsCancelEvent) {
    useFiveTracks();
    SWXMLParser parser(m_list, all(), fiveTracks, 0, false, 5, 10, m_services);
    parser.cancel();
    run(parser);
    EXPECT_EQ(events().back(), "addCancel");
    EXPECT_THAT(m_list->records, IsEmpty());
}

/// Preferences whose every question fails with an exception.
class BrokenPreferences final : public Preferences {
  public:
    std::optional<IAppsDomain> iAppsDomain() const override { throw std::runtime_error("broken"); }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return {}; }
    std::string homeFolder() const override { return {}; }
};

TEST_F(SWXMLParserTest, AnExceptionWhileLocatingLeavesTheOperationAfterTheFinishingSteps) {
    BrokenPreferences preferences;
    SWXMLParser parser(m_list, all(), fiveTracks, 0, false, 5, 10,
                       {m_center, m_scripts, m_files, preferences, m_sleeper, m_log});
    m_list->records.push_back(&m_list->storage->makeRecord());
    EXPECT_THROW(run(parser), std::runtime_error);
    EXPECT_THAT(m_trace, ElementsAre("XML Parsing", "Begin XML Finally", "End XML Finally"));
    EXPECT_EQ(m_list->records.size(), 1U);
}

TEST_F(SWXMLParserTest, ThePlainInitialiserMakesAReaderOfNothing) {
    useFiveTracks();
    SWXMLParser parser(m_services);
    EXPECT_FALSE(parser.isInMusicPlaylist({.trackid = "1"}));
    run(parser);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlErrorParsing"));
}

} // namespace
} // namespace songsweep
