// SPDX-License-Identifier: MIT
#include "library/ReaderFixture.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SWXMLParserRefreshTest : public test::ReaderFixture {
  protected:
    /// One track in the playlist, with what the location element holds ("" leaves it out).
    void useTrack(const std::string& location) {
        const std::string element =
            location.empty() ? "" : "<key>Location</key><string>" + location + "</string>";
        useLibraryText("<plist><dict><key>Tracks</key><dict><key>1</key><dict>"
                       "<key>Track ID</key><integer>1</integer><key>Persistent ID</key><string>AB12</string>"
                       "<key>Track Type</key><string>File</string>" +
                       element +
                       "</dict></dict><key>Playlists</key><array><dict><key>Name</key><string>All</string>"
                       "<key>Playlist Items</key><array><dict><key>Track ID</key><integer>1</integer></dict>"
                       "</array></dict></array></dict></plist>");
    }
    void answer(const Descriptor& descriptor) {
        m_scripts.answer = [descriptor](std::string_view) { return descriptor; };
    }
    std::string refreshed(const char* location) {
        SWXMLParser parser(m_services);
        TrackRecord record{.pid = "AB12", .location = location};
        parser.refreshLocationApplescript(record);
        return record.location.string();
    }
};

TEST_F(SWXMLParserRefreshTest, SendsThisText) {
    refreshed("/old");
    EXPECT_THAT(m_scripts.sources,
                ElementsAre("tell application \"iTunes\" \n"
                            "set tlocation2 to location of (tracks whose persistent ID is \"AB12\") \n"
                            "try \n"
                            "set tlocation to POSIX path of tlocation2 \n"
                            "on error \n"
                            "set tlocation to tlocation2 \n"
                            "end try \n"
                            "{tlocation} \n"
                            "end tell"));
}

TEST_F(SWXMLParserRefreshTest, EscapesAnIdThatWouldEndItsLiteral) {
    answer(Descriptor::text("/new"));
    SWXMLParser parser(m_services);
    TrackRecord record{.pid = "0\") \ndelete \\", .location = "/old"};
    parser.refreshLocationApplescript(record);
    ASSERT_EQ(m_scripts.sources.size(), 1U);
    EXPECT_THAT(m_scripts.sources[0], testing::HasSubstr("ID is \"0\\\") \ndelete \\\\\") \ntry"));
    EXPECT_EQ(record.location, "/new");
}

TEST_F(SWXMLParserRefreshTest, TakesTheAnswerAsItComes) {
    answer(Descriptor::list({Descriptor::text("/New/Place.MP3")}));
    EXPECT_EQ(refreshed("/old"), "/New/Place.MP3");
    answer(Descriptor::text(""));
    EXPECT_EQ(refreshed("/old"), "");
}

TEST_F(SWXMLParserRefreshTest, TheMissingValueInAnyCaseChangesNothing) {
    for (const char* text : {"msng", "MSNG", "mSnG"}) {
        answer(Descriptor::text(text));
        EXPECT_EQ(refreshed("/old"), "/old");
    }
    answer(Descriptor::list({Descriptor()}));
    EXPECT_EQ(refreshed("/old"), "/old");
}

TEST_F(SWXMLParserRefreshTest, NoAnswerChangesNothing) {
    EXPECT_EQ(refreshed("/old"), "/old");
    answer(Descriptor::list({}));
    EXPECT_EQ(refreshed("/old"), "/old");
}

TEST_F(SWXMLParserRefreshTest, AnIdOfSeveralTracksIsAskedForOnce) {
    SWXMLParser parser(m_services);
    TrackRecord first{.pid = "AB12", .location = "/first"};
    TrackRecord second{.pid = "AB12", .location = "/second"};
    TrackRecord other{.pid = "CD34", .location = "/other"};
    answer(Descriptor::list({Descriptor::list({Descriptor(), Descriptor::text("/new")})}));
    for (TrackRecord* record : {&first, &second, &other})
        parser.refreshLocationApplescript(*record);
    EXPECT_THAT(m_scripts.sources, testing::SizeIs(2));
    EXPECT_THAT(m_scripts.sources.back(), testing::HasSubstr("CD34"));
    EXPECT_EQ(second.location, "/second");
}

TEST_F(SWXMLParserRefreshTest, AnIdThatOneTrackHasIsAskedForEachTime) {
    SWXMLParser parser(m_services);
    TrackRecord record{.pid = "AB12", .location = "/old"};
    for (const Descriptor& one : {Descriptor(), Descriptor::list({}), Descriptor::list({Descriptor()}),
                                  Descriptor::list({Descriptor::list({Descriptor::text("/new")})})}) {
        answer(one);
        parser.refreshLocationApplescript(record);
    }
    EXPECT_THAT(m_scripts.sources, testing::SizeIs(4));
}

TEST_F(SWXMLParserRefreshTest, AnExceptionIsIgnored) {
    m_scripts.answer = [](std::string_view) -> Result<Descriptor> { throw std::runtime_error("lost"); };
    EXPECT_EQ(refreshed("/old"), "/old");
}

TEST_F(SWXMLParserRefreshTest, AnExceptionOfAnotherKindEndsTheProcessing) {
    useTrack("file:///gone.mp3");
    m_scripts.answer = [](std::string_view) -> Result<Descriptor> { throw 1; };
    run({.playlist = "All"}, 1);
    EXPECT_THAT(events(), ElementsAre("xmlModifiedDate", "xmlDoneParsing", "xmlErrorProcessing"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(SWXMLParserRefreshTest, AFileThatExistsIsNotAskedFor) {
    write("a b.mp3", "x");
    useTrack("file://localhost" + path("a%20b.mp3"));
    run({.playlist = "All"}, 1);
    EXPECT_THAT(m_scripts.sources, IsEmpty());
    EXPECT_FALSE(m_list->records.at(0)->isdead);
}

TEST_F(SWXMLParserRefreshTest, AFileThatMovedIsFoundAndLogged) {
    write("moved.mp3", "x");
    useTrack("file:///gone.mp3");
    answer(Descriptor::text(path("moved.mp3")));
    run({.playlist = "All"}, 1);
    EXPECT_EQ(m_list->records.at(0)->location, path("moved.mp3"));
    EXPECT_FALSE(m_list->records.at(0)->isdead);
    EXPECT_THAT(m_trace, testing::Contains(path("moved.mp3")));
}

TEST_F(SWXMLParserRefreshTest, AFileThatMovedIsKeptWhereMissingOnesAreIgnored) {
    write("moved.mp3", "x");
    useTrack("file:///gone.mp3");
    answer(Descriptor::text(path("moved.mp3")));
    run({.isignoredead = true, .playlist = "All"}, 1);
    ASSERT_EQ(m_list->records.size(), 1U);
    EXPECT_FALSE(m_list->records.at(0)->isdead);
    EXPECT_THAT(m_trace, testing::Not(testing::Contains(path("moved.mp3"))));
}

TEST_F(SWXMLParserRefreshTest, ATrackWithoutALocationIsAskedForAndDead) {
    useTrack("");
    run({.playlist = "All"}, 1);
    EXPECT_EQ(m_scripts.sources.size(), 1U);
    EXPECT_TRUE(m_list->records.at(0)->isdead);
    EXPECT_EQ(m_list->records.at(0)->location, "");
    EXPECT_THAT(m_trace, testing::Contains(""));
}

TEST_F(SWXMLParserRefreshTest, ATrackThatITunesNoLongerKnowsKeepsItsLocation) {
    useTrack("file:///gone.mp3");
    run({.playlist = "All"}, 1);
    EXPECT_EQ(m_list->records.at(0)->location, "/gone.mp3");
    EXPECT_TRUE(m_list->records.at(0)->isdead);
    m_list->records.clear();
    run({.isignoredead = true, .playlist = "All"}, 1);
    EXPECT_THAT(m_list->records, IsEmpty());
}

} // namespace
} // namespace songsweep
