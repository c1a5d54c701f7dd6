// SPDX-License-Identifier: MIT
#include "dupes/BuildResultProc.h"

#include "library/CaseFolding.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <new>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr SearchParameters byNameAndArtist{.issamename = true, .issameartist = true};

/// Runs a grouping on the main thread, where events are handled as they are posted.
class BuildResultProcTest : public testing::Test {
  protected:
    TrackRecord& add(const TrackRecord& record) {
        m_list->records.push_back(&(m_list->storage->makeRecord() = record));
        return *m_list->records.back();
    }

    void run(const SearchParameters& parameters) {
        BuildResultProc operation(m_list, parameters, m_center);
        m_center.setObserver([&](const WorkerEvent& event) { observe(event, operation); });
        operation.main();
    }

    void observe(const WorkerEvent& event, BuildResultProc& operation) {
        EXPECT_EQ(event.sender, &operation);
        std::string line(text(event.name));
        if (const auto* record = std::get_if<TrackRecord*>(&event.payload)) {
            line += " " + (*record)->name.string();
            if (event.name == EventName::step2) {
                line += " " + std::to_string((*record)->gid);
                m_rows.push_back(*record);
            }
        }
        m_events.push_back(line);
        if (m_onEvent) m_onEvent(event, operation);
    }

    std::vector<std::string> events(std::string_view beginning = "") const {
        std::vector<std::string> found;
        std::copy_if(m_events.begin(), m_events.end(), std::back_inserter(found),
                     [&](const std::string& line) { return line.starts_with(beginning); });
        return found;
    }

    NotificationCenter<WorkerEvent> m_center;
    std::shared_ptr<TrackList> m_list = std::make_shared<TrackList>();
    std::vector<std::string> m_events;
    std::vector<TrackRecord*> m_rows;
    std::function<void(const WorkerEvent&, BuildResultProc&)> m_onEvent;
};

TEST_F(BuildResultProcTest, AnEmptyListEndsAtOnce) {
    run(byNameAndArtist);
    EXPECT_THAT(m_events, ElementsAre("buildFinish"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(BuildResultProcTest, AListOfOneRecordEndsAtOnce) {
    const TrackRecord& record = add({.name = "Song"});
    run(byNameAndArtist);
    EXPECT_THAT(m_events, ElementsAre("buildFinish"));
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_EQ(record.gid, 0);
}

TEST_F(BuildResultProcTest, RecordsOfAnyCaseFormOneGroup) {
    const TrackRecord& a = add({.name = "Song", .artist = "ARTIST"});
    const TrackRecord& b = add({.name = "song", .artist = "artist"});
    run(byNameAndArtist);
    EXPECT_EQ(a.gid, 1);
    EXPECT_EQ(b.gid, 1);
    EXPECT_THAT(m_events, ElementsAre("progress Song", "step2 Song 1", "step2 song 1", "buildFinish"));
}

TEST_F(BuildResultProcTest, ATrailingBlankMakesAnotherName) {
    add({.name = "Song"});
    add({.name = "Song "});
    run(byNameAndArtist);
    EXPECT_THAT(m_rows, IsEmpty());
}

TEST_F(BuildResultProcTest, TracksWithoutATimeAreNoDuplicatesWhileItIsCompared) {
    add({.name = "Song"});
    add({.name = "Song"});
    run({.issamename = true, .issametime = true});
    EXPECT_THAT(m_rows, IsEmpty());
}

TEST_F(BuildResultProcTest, TimesThatDifferByASecondAreNoDuplicates) {
    add({.name = "Song", .time = "3:06", .timev = 186});
    add({.name = "Song", .time = "3:05", .timev = 185});
    run({.issamename = true, .issametime = true});
    EXPECT_THAT(m_rows, IsEmpty());
}

TEST_F(BuildResultProcTest, TimesThatShowAlikeAreTheSame) {
    add({.name = "a", .time = "3:05", .timev = 185});
    add({.name = "b", .time = "12:00", .timev = 720});
    add({.name = "c", .time = "3:05", .timev = 185});
    run({.issametime = true});
    EXPECT_THAT(events("step2"), ElementsAre("step2 a 1", "step2 c 1"));
}

TEST_F(BuildResultProcTest, SortsTimesByTheNumberBehindThem) {
    for (const auto& [time, seconds] :
         {std::pair("10:00", 600), {"9:00", 540}, {"10:00", 600}, {"9:00", 540}})
        add({.name = time, .time = time, .timev = seconds});
    run({.issametime = true});
    EXPECT_THAT(events("step2"),
                ElementsAre("step2 9:00 1", "step2 9:00 1", "step2 10:00 2", "step2 10:00 2"));
}

TEST_F(BuildResultProcTest, GroupsAreNumberedInSortedOrderAndSingletonsLeftOut) {
    for (const char* name : {"c", "b", "A", "C", "a", "a"})
        add({.name = name});
    run({.issamename = true});
    EXPECT_THAT(m_events, ElementsAre("progress A", "step2 A 1", "step2 a 1", //
                                      "progress a", "step2 a 1",              //
                                      "progress a",                           //
                                      "progress b",                           //
                                      "progress c", "step2 c 2", "step2 C 2", "buildFinish"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(BuildResultProcTest, WithoutAFlagAllTracksFormOneGroupInTheirOrder) {
    for (const char* name : {"c", "a", "b"})
        add({.name = name});
    run({});
    EXPECT_THAT(events("step2"), ElementsAre("step2 c 1", "step2 a 1", "step2 b 1"));
}

TEST_F(BuildResultProcTest, EachFlagComparesItsField) {
    const TrackRecord a{.name = "n", .artist = "x", .album = "x"};
    const TrackRecord b{.name = "n", .artist = "y", .album = "y"};
    EXPECT_TRUE(isSameTag(a, b, {.issamename = true}));
    EXPECT_FALSE(isSameTag(a, b, {.issameartist = true}));
    EXPECT_FALSE(isSameTag(a, b, {.issamealbum = true}));
    EXPECT_FALSE(isSameTag(a, b, {.issamename = true, .issamealbum = true}));
    EXPECT_TRUE(isSameTag(a, b, {}));
}

TEST_F(BuildResultProcTest, TwoEmptyTextsAreEqual) {
    EXPECT_TRUE(isSameTag({}, {}, {.issamename = true, .issameartist = true, .issamealbum = true}));
}

TEST_F(BuildResultProcTest, AccentsAndWidthsAreKeptApartButNotTheFormsOfOneLetter) {
    const SearchParameters byName{.issamename = true};
    EXPECT_FALSE(isSameTag({.name = "Hoppipolla"}, {.name = "Hoppípolla"}, byName));
    EXPECT_FALSE(isSameTag({.name = "Ａ"}, {.name = "A"}, byName));
    EXPECT_TRUE(isSameTag({.name = "BJO\u0308RK"}, {.name = "björk"}, byName));
}

TEST_F(BuildResultProcTest, DeadTracksAreGroupedLikeAnyOther) {
    add({.name = "Song", .isdead = true});
    add({.name = "Song"});
    run({.issamename = true, .isignoredead = true});
    EXPECT_EQ(m_rows.size(), 2U);
}

TEST_F(BuildResultProcTest, CancellingStopsTheEventsAndEmptiesTheList) {
    for (int i = 0; i < 5; ++i)
        add({.name = "Song"});
    m_onEvent = [](const WorkerEvent& event, BuildResultProc& operation) {
        if (event.name == EventName::step2) operation.cancel();
    };
    run({.issamename = true});
    EXPECT_THAT(m_events, ElementsAre("progress Song", "step2 Song 1", "step2 Song 1", "addCancel"));
    EXPECT_THAT(m_list->records, IsEmpty());
}

TEST_F(BuildResultProcTest, ACancelAfterTheLastComparisonStillEndsWithTheCancelEvent) {
    add({.name = "a"});
    add({.name = "b"});
    m_onEvent = [](const WorkerEvent& event, BuildResultProc& operation) {
        if (event.name == EventName::progress) operation.cancel();
    };
    run({.issamename = true});
    EXPECT_THAT(m_events, ElementsAre("progress a", "addCancel"));
}

TEST_F(BuildResultProcTest, AnExceptionStillEmptiesTheListAndPostsTheFinalEvent) {
    add({.name = "Song"});
    add({.name = "Song"});
    m_onEvent = [](const WorkerEvent& event, BuildResultProc&) {
        if (event.name == EventName::step2) throw std::runtime_error("defect");
    };
    EXPECT_THROW(run({.issamename = true}), std::runtime_error);
    EXPECT_THAT(m_events, ElementsAre("progress Song", "step2 Song 1", "buildFinish"));
    EXPECT_THAT(m_list->records, IsEmpty());
    EXPECT_EQ(m_list->coverage.brokenOff, "defect");
}

TEST_F(BuildResultProcTest, MemoryThatRunsOutBreaksTheGroupingOff) {
    add({.name = "Song"});
    add({.name = "Song"});
    std::string toldAtTheEnd;
    m_onEvent = [&](const WorkerEvent& event, BuildResultProc&) {
        if (event.name == EventName::progress) throw std::bad_alloc();
        toldAtTheEnd = m_list->coverage.brokenOff;
    };
    EXPECT_THROW(run({.issamename = true}), std::bad_alloc);
    EXPECT_EQ(m_events.back(), "buildFinish");
    EXPECT_EQ(toldAtTheEnd, "out of memory");
}

TEST_F(BuildResultProcTest, TwoGroupingsDoNotShareTheirParameters) {
    add({.name = "a", .artist = "x"});
    add({.name = "b", .artist = "x"});
    BuildResultProc byArtist(m_list, {.issameartist = true}, m_center);
    const BuildResultProc byName(std::make_shared<TrackList>(), {.issamename = true}, m_center);
    m_center.setObserver([&](const WorkerEvent& event) { observe(event, byArtist); });
    byArtist.main();
    EXPECT_EQ(m_rows.size(), 2U);
}

/// A random library against groups found by comparing keys of plain strings.
class GroupingAgainstNaive : public BuildResultProcTest, public testing::WithParamInterface<unsigned> {
  protected:
    using Key = std::vector<std::string>;

    static Key keyOf(const TrackRecord& record, const SearchParameters& parameters) {
        Key key;
        if (parameters.issamename) key.push_back(foldedKey(record.name));
        if (parameters.issameartist) key.push_back(foldedKey(record.artist));
        if (parameters.issamealbum) key.push_back(foldedKey(record.album));
        if (parameters.issametime) key.push_back(std::to_string(100'000 + record.timev));
        return key;
    }

    void fill(std::mt19937& random) {
        static constexpr std::array<const char*, 6> texts = {"", "a", "A", "b ", "é", "E\u0301"};
        static constexpr std::array<std::pair<const char*, int>, 3> times = {
            {{"", 0}, {"0:09", 9}, {"0:10", 10}}};
        for (int i = 0; i < 60; ++i) {
            const auto& [time, seconds] = times[random() % times.size()];
            add({.name = texts[random() % texts.size()],
                 .artist = texts[random() % texts.size()],
                 .album = texts[random() % texts.size()],
                 .time = time,
                 .timev = seconds});
        }
    }
};

TEST_P(GroupingAgainstNaive, FindsTheSameGroups) {
    std::mt19937 random(GetParam());
    const SearchParameters parameters{.issamename = (GetParam() & 1) != 0,
                                      .issameartist = (GetParam() & 2) != 0,
                                      .issamealbum = (GetParam() & 4) != 0,
                                      .issametime = (GetParam() & 8) != 0};
    fill(random);
    const std::vector<TrackRecord*> all = m_list->records;
    std::map<Key, std::vector<TrackRecord*>> expected;
    for (TrackRecord* record : all)
        if (!parameters.issametime || !record->time.empty())
            expected[keyOf(*record, parameters)].push_back(record);

    run(parameters);

    std::vector<TrackRecord*> rows;
    int gid = 0;
    for (const auto& [key, members] : expected) {
        if (members.size() < 2) continue;
        ++gid;
        for (TrackRecord* member : members) {
            EXPECT_EQ(member->gid, gid);
            rows.push_back(member);
        }
    }
    EXPECT_EQ(m_rows, rows);
    EXPECT_EQ(events("progress").size(), all.size() - 1);
}

INSTANTIATE_TEST_SUITE_P(AllFlags, GroupingAgainstNaive, testing::Range(0U, 64U));

} // namespace
} // namespace songsweep
