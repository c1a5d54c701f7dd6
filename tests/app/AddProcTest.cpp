// SPDX-License-Identifier: MIT
#include "app/AddProc.h"

#include "app/AddRecord.h"
#include "app/FakeITunes.h"
#include "library/ValueFormats.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "platform/Preferences.h"
#include "platform/Sleeper.h"
#include "support/RecordingLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <stdexcept>

namespace songsweep::test {
namespace {

using ::testing::ElementsAre;

class NoPreferences final : public Preferences {
  public:
    std::optional<IAppsDomain> iAppsDomain() const override { return std::nullopt; }
    std::optional<IAppsDomain> iAppsPropertyList(const std::string&) const override { return std::nullopt; }
    std::string homeFolder() const override { return "/nowhere"; }
};

/// Runs the reader on the main thread, where posting calls the observer directly.
class AddProcTest : public ::testing::Test {
  protected:
    AddProcTest() {
        center.setObserver([this](const WorkerEvent& event) {
            std::string line(text(event.name));
            if (const auto* units = std::get_if<ProgressUnits>(&event.payload))
                line += " " + std::to_string(units->prg);
            events.push_back(line);
        });
    }

    std::unique_ptr<AddProc> makeReader() {
        return std::make_unique<AddProc>(list, parameters, 1,
                                         ReaderServices{center, iTunes, files, preferences, sleeper, log});
    }
    void addTracks(int count) {
        for (int i = 1; i <= count; ++i) {
            FakeTrack track;
            track.name = "Song " + std::to_string(i);
            iTunes.tracks.push_back(track);
        }
    }

    NotificationCenter<WorkerEvent> center;
    FakeITunes iTunes;
    Files files;
    NoPreferences preferences;
    Sleeper sleeper;
    RecordingLog log;
    SearchParameters parameters;
    std::shared_ptr<TrackList> list = std::make_shared<TrackList>();
    std::vector<std::string> events;
};

TEST_F(AddProcTest, ReadsAPlaylistOf120TracksInThreeBatches) {
    addTracks(120);
    makeReader()->main();
    EXPECT_THAT(events, ElementsAre("progressx 50", "progressx 50", "progressx 20", "addFinish"));
    const std::vector<std::string> texts = iTunes.texts();
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0], "tell application \"iTunes\" to get count of tracks of playlist 1");
    EXPECT_NE(texts[1].find("repeat with i from 1 to 50 \n"), std::string::npos);
    EXPECT_NE(texts[2].find("repeat with i from 51 to 100 \n"), std::string::npos);
    EXPECT_NE(texts[3].find("repeat with i from 101 to 120 \n"), std::string::npos);
    ASSERT_EQ(list->records.size(), 120U);
    EXPECT_EQ(list->records[0]->name, "Song 1");
    EXPECT_EQ(list->records[119]->name, "Song 120");
    EXPECT_THAT(log.lines(), ElementsAre("Applescript Parsing", "120"));
}

TEST_F(AddProcTest, SendsTheBatchTextAsItStands) {
    EXPECT_EQ(
        batchScript(3, 51, 100),
        "tell application \"iTunes\" \nset tindex to 3 \nset itunes_records to {} \nrepeat with i from 51 to "
        "100 "
        "\nset tname to name of track i of playlist tindex \nset tartist to artist of track i of playlist "
        "tindex "
        "\nset talbum to album of track i of playlist tindex \nset ttime to time of track i of playlist "
        "tindex "
        "\nset tbitrate to bit rate of track i of playlist tindex \nset tsize to size of track i of playlist "
        "tindex \nset tdateadded to date added of track i of playlist tindex \nset trating to rating of "
        "track i "
        "of playlist tindex \nset tpid to persistent ID of track i of playlist tindex \nset tplaycount to "
        "played "
        "count of track i of playlist tindex \nset tlocation2 to location of (tracks whose persistent ID is "
        "tpid) "
        "\ntry \nset tlocation to POSIX path of tlocation2 \non error \nset tlocation to tlocation2 \nend "
        "try "
        "\nset tartworks to {} \ntry \nset tartworks to artworks of track i of playlist tindex \nend try "
        "\nset "
        "end of itunes_records to {tname, tartist, talbum, ttime, tbitrate, tsize, tdateadded, trating, "
        "tpid, "
        "tplaycount, tlocation, tartworks} \nend repeat \n{itunes_records} \nend tell \n");
}

TEST_F(AddProcTest, APlaylistOfNoTracksFinishesWithoutProgress) {
    makeReader()->main();
    EXPECT_THAT(events, ElementsAre("addFinish"));
    EXPECT_TRUE(list->records.empty());
}

TEST_F(AddProcTest, LeavesOutMissingTracksWhenAskedButCountsThem) {
    addTracks(3);
    iTunes.tracks[1].location.reset();
    parameters.isignoredead = true;
    makeReader()->main();
    EXPECT_THAT(events, ElementsAre("progressx 3", "addFinish"));
    ASSERT_EQ(list->records.size(), 2U);
    EXPECT_EQ(list->records[1]->name, "Song 3");
}

TEST_F(AddProcTest, KeepsMissingTracksFlaggedOtherwise) {
    addTracks(1);
    iTunes.tracks[0].location.reset();
    makeReader()->main();
    ASSERT_EQ(list->records.size(), 1U);
    EXPECT_TRUE(list->records[0]->isdead);
    EXPECT_EQ(list->records[0]->location, "msng");
}

TEST_F(AddProcTest, FillsEveryKeyOfARecord) {
    FakeTrack track;
    track.artworks = 2;
    track.time = "4:05";
    iTunes.tracks.push_back(track);
    makeReader()->main();
    ASSERT_EQ(list->records.size(), 1U);
    const TrackRecord& record = *list->records[0];
    EXPECT_EQ(record.name, "Song");
    EXPECT_EQ(record.artist, "Artist");
    EXPECT_EQ(record.album, "Album");
    EXPECT_EQ(record.time, "4:05");
    EXPECT_EQ(record.timev, 245);
    EXPECT_EQ(record.bitrate, "128");
    EXPECT_EQ(record.size, "1048576");
    EXPECT_EQ(record.rating, 3);
    EXPECT_EQ(record.pid, "0000000000000001");
    EXPECT_EQ(record.playcount, "2");
    EXPECT_EQ(record.location, "/music/song.mp3");
    EXPECT_TRUE(record.hasartwork);
    EXPECT_TRUE(record.hasdate);
    EXPECT_FALSE(record.isdead);
    EXPECT_FALSE(record.checkbox);
    EXPECT_FALSE(record.fromlibraryfile);
    EXPECT_EQ(record.gid, 0);
    EXPECT_FALSE(record.showid);
}

TEST_F(AddProcTest, SizeOfOneMebibyteShowsOneTenthMore) {
    addTracks(1);
    makeReader()->main();
    EXPECT_EQ(sizestring(*list->records.at(0)), "1.1 MB");
}

TEST_F(AddProcTest, RatingDropsTheFraction) {
    addTracks(2);
    iTunes.tracks[0].rating = 60;
    iTunes.tracks[1].rating = 99;
    makeReader()->main();
    EXPECT_EQ(list->records.at(0)->rating, 3);
    EXPECT_EQ(list->records.at(1)->rating, 4);
}

TEST_F(AddProcTest, ATimeOfFourMinutesAndFiveSecondsGives245) {
    addTracks(1);
    iTunes.tracks[0].time = "4:05";
    makeReader()->main();
    EXPECT_EQ(list->records.at(0)->timev, 245);
}

TEST_F(AddProcTest, CancelDuringTheSecondBatchEmptiesTheList) {
    addTracks(120);
    const auto reader = makeReader();
    int batches = 0;
    iTunes.onScript = [&](const std::string& text) {
        if (text.find("itunes_records") != std::string::npos && ++batches == 2) reader->cancel();
    };
    reader->main();
    EXPECT_THAT(events, ElementsAre("progressx 50", "addCancel"));
    EXPECT_TRUE(list->records.empty());
}

TEST_F(AddProcTest, CancelledBeforeItBeginsItStillReportsItsCancel) {
    addTracks(10);
    const auto reader = makeReader();
    reader->cancel();
    reader->main();
    EXPECT_THAT(events, ElementsAre("addCancel"));
}

TEST_F(AddProcTest, AFailingCountScriptReadsNothing) {
    addTracks(10);
    iTunes.fails = [](const std::string& text) { return text.find("get count") != std::string::npos; };
    makeReader()->main();
    EXPECT_THAT(events, ElementsAre("addFinish"));
    EXPECT_THAT(log.lines(), ElementsAre("Applescript Parsing", "0"));
    EXPECT_EQ(list->coverage.brokenOff, "told to fail");
}

/// Whether a batch script asks for the track.
bool asksFor(const std::string& text, int track) {
    int first = 0;
    int last = 0;
    const std::size_t range = text.find("with i from ");
    return range != std::string::npos &&
           std::sscanf(text.c_str() + range, "with i from %d to %d", &first, &last) == 2 && first <= track &&
           track <= last;
}

TEST_F(AddProcTest, ATrackThatCannotBeReadIsLeftOutAlone) {
    addTracks(60);
    iTunes.fails = [](const std::string& text) { return asksFor(text, 17); };
    makeReader()->main();
    EXPECT_THAT(events, ElementsAre("progressx 50", "progressx 10", "addFinish"));
    ASSERT_EQ(list->records.size(), 59U);
    for (std::size_t i = 0; i < list->records.size(); ++i)
        EXPECT_EQ(list->records[i]->name, "Song " + std::to_string(i < 16 ? i + 1 : i + 2))
            << "in their order";
    EXPECT_THAT(log.lines(),
                ElementsAre("Applescript Parsing", "60", "Tracks 17 to 17 could not be read: told to fail"));
    EXPECT_EQ(list->coverage.unreadTracks, 1);
    EXPECT_EQ(list->coverage.unreadReason, "told to fail");
    EXPECT_EQ(list->coverage.playlistTracks, 60);
}

TEST_F(AddProcTest, TheFirstReasonIsKeptWithoutItsPlaceInTheScript) {
    addTracks(100);
    iTunes.fails = [](const std::string& text) { return asksFor(text, 17) || asksFor(text, 60); };
    iTunes.failure = [](const std::string& text) {
        return asksFor(text, 60) ? "another" : "line 5, column 14: the entry is: bad";
    };
    makeReader()->main();
    EXPECT_EQ(list->coverage.unreadTracks, 2);
    EXPECT_EQ(list->coverage.unreadReason, "the entry is: bad");
    iTunes.failure = [](const std::string&) { return "line 20: of the library"; };
    makeReader()->main();
    EXPECT_EQ(list->coverage.unreadReason, "line 20: of the library");
}

TEST_F(AddProcTest, ABatchThatIsTooShortLeavesTracksUnread) {
    addTracks(3);
    iTunes.trackCount = 5;
    makeReader()->main();
    EXPECT_EQ(list->records.size(), 3U);
    EXPECT_EQ(list->coverage.unreadTracks, 2);
    EXPECT_EQ(list->coverage.unreadReason, "iTunes gave fewer tracks than it was asked for");
}

TEST_F(AddProcTest, WhatAnotherReaderNotedIsForgotten) {
    addTracks(3);
    list->coverage.playlist = SearchCoverage::Playlist::none;
    makeReader()->main();
    EXPECT_EQ(list->coverage.playlist, SearchCoverage::Playlist::chosen);
}

TEST_F(AddProcTest, EachOfManyTracksThatCannotBeReadIsLeftOutAlone) {
    addTracks(200);
    iTunes.fails = [](const std::string& text) {
        for (int track = 10; track <= 200; track += 10)
            if (asksFor(text, track)) return true;
        return false;
    };
    makeReader()->main();
    EXPECT_EQ(list->records.size(), 180U);
    EXPECT_EQ(list->coverage.unreadTracks, 20);
}

TEST_F(AddProcTest, AnITunesThatIsGoneIsNotAskedForEveryTrack) {
    addTracks(1000);
    iTunes.fails = [](const std::string& text) { return text.find("get count") == std::string::npos; };
    makeReader()->main();
    EXPECT_TRUE(list->records.empty());
    EXPECT_LT(iTunes.texts().size(), 60U);
    EXPECT_EQ(list->coverage.unreadTracks, 1000);
    EXPECT_EQ(events.back(), "addFinish");
}

TEST_F(AddProcTest, AnExceptionStillPostsTheEndAndLeavesTheOperation) {
    addTracks(60);
    iTunes.onScript = [](const std::string& text) {
        if (text.find("from 51 to 60") != std::string::npos) throw std::runtime_error("lost");
    };
    EXPECT_THROW(makeReader()->main(), std::runtime_error);
    EXPECT_THAT(events, ElementsAre("progressx 50", "addFinish"));
    EXPECT_EQ(list->records.size(), 50U);
    EXPECT_EQ(list->coverage.brokenOff, "lost");
}

TEST_F(AddProcTest, AppendsToWhatIsThere) {
    TrackRecord there;
    list->records.push_back(&there);
    addTracks(1);
    makeReader()->main();
    EXPECT_EQ(list->records.size(), 2U);
}

TEST_F(AddProcTest, ATrackWithoutADateKeepsNone) {
    const Descriptor item = Descriptor::list({Descriptor::text("Song")});
    const TrackRecord& record = makeRecord(*list->storage, item);
    EXPECT_EQ(record.dateaddedv, 0);
    EXPECT_FALSE(record.hasdate);
    EXPECT_EQ(record.bitrate, "");
}

/// Sets the time zone of the process for one test.
class TimeZone {
  public:
    explicit TimeZone(const char* name) {
        setenv("TZ", name, 1);
        tzset();
    }
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone() {
        unsetenv("TZ");
        tzset();
    }
};

constexpr std::int64_t from1904To1970 = 2082844800;

TEST(MinuteOfLongDateTime, RoundsToTheNearestMinute) {
    const TimeZone zone("UTC");
    EXPECT_EQ(minuteOfLongDateTime(1237043366 + from1904To1970), 1237043340); // 15:09:26
    EXPECT_EQ(minuteOfLongDateTime(1237043370 + from1904To1970), 1237043400); // 15:09:30
}

TEST(MinuteOfLongDateTime, CountsLocalTimeAcrossTheChangeToSummerTime) {
    const TimeZone zone("Europe/Berlin");
    const std::int64_t changeOf2009 = 1238288400; // 2009-03-29 01:00 UTC
    EXPECT_EQ(minuteOfLongDateTime(changeOf2009 - 3600 + 3600 + from1904To1970), changeOf2009 - 3600);
    EXPECT_EQ(minuteOfLongDateTime(changeOf2009 + 3600 + 7200 + from1904To1970), changeOf2009 + 3600);
}

} // namespace
} // namespace songsweep::test
