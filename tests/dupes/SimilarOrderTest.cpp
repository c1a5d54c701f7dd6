// SPDX-License-Identifier: MIT
#include "dupes/SimilarOrder.h"

#include "dupes/BuildResultProc.h"
#include "dupes/LooseKeys.h"
#include "dupes/TimeCut.h"
#include "library/TrackStorage.h"
#include "library/ValueFormats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <set>
#include <string>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Names = std::vector<std::string>;

constexpr SearchParameters similar{
    .issamename = true, .issameartist = true, .issametime = true, .issimilar = true};

class SimilarOrderTest : public testing::Test {
  protected:
    void add(const char* name, int seconds = 180, std::int16_t trackNumber = 0, const char* artist = "A") {
        TrackRecord& record = m_storage.makeRecord();
        record.name = name;
        record.artist = artist;
        record.timev = seconds;
        record.time = seconds < 0 ? Text() : m_storage.store(SecToTime(seconds * 1000));
        record.tracknumber = trackNumber;
        m_records.push_back(&record);
    }

    /// Each group's records, in their order.
    static std::vector<std::vector<TrackRecord*>> groupsOf(const GroupOrder& order) {
        std::vector<std::vector<TrackRecord*>> groups;
        for (std::size_t place = 1; place < order.records.size(); ++place) {
            if (!order.joined[place]) continue;
            if (!order.joined[place - 1]) groups.push_back({order.records[place - 1]});
            groups.back().push_back(order.records[place]);
        }
        return groups;
    }

    std::vector<Names> names(const SearchParameters& parameters = similar) const {
        std::vector<Names> found;
        for (const auto& group : groupsOf(similarOrder(m_records, parameters))) {
            found.emplace_back();
            for (const TrackRecord* record : group)
                found.back().push_back(record->name.string());
        }
        return found;
    }

    TrackStorage m_storage;
    std::vector<TrackRecord*> m_records;
};

TEST_F(SimilarOrderTest, SmallDifferencesMakeOneGroupThePlainestFirst) {
    add("Song (feat. X)", 181);
    add("SONG", 180);
    add("Song – Remastered 2009", 182);
    add("Song (Live)", 180);
    EXPECT_THAT(names(), ElementsAre(ElementsAre("SONG", "Song (feat. X)", "Song – Remastered 2009")));
}

TEST_F(SimilarOrderTest, CopiesOfAGroupAllLieWithinTheTolerance) {
    for (const int seconds : {100, 102, 104})
        add("Song", seconds);
    EXPECT_THAT(names(), ElementsAre(ElementsAre("Song", "Song")));
    SearchParameters wider = similar;
    wider.toleranceSeconds = 4;
    EXPECT_THAT(names(wider), ElementsAre(ElementsAre("Song", "Song", "Song")));
    wider.toleranceSeconds = 0;
    EXPECT_THAT(names(wider), IsEmpty());
}

TEST_F(SimilarOrderTest, TimesDoNotCountWhereTheyAreNotCompared) {
    add("Song", 100);
    add("song!", 900);
    add("Song (feat. X)", 100);
    EXPECT_THAT(names({.issamename = true, .issimilar = true}), ElementsAre(ElementsAre("Song", "song!")));
}

TEST_F(SimilarOrderTest, TracksWithoutATimeAreNoDuplicatesWhileItIsCompared) {
    add("Song", -1);
    add("Song", -1);
    add("Song", 1);
    add("Song", 0);
    EXPECT_THAT(names(), ElementsAre(ElementsAre("Song", "Song")));
    EXPECT_THAT(names({.issamename = true, .issimilar = true}).front().size(), 4U);
}

TEST_F(SimilarOrderTest, ATracksOwnNumberBeforeItsNameDoesNotCount) {
    add("01 - Song", 180, 1);
    add("Song", 180, 4);
    add("02 Other", 180, 3);
    add("Other", 180, 3);
    EXPECT_THAT(names(), ElementsAre(ElementsAre("Song", "01 - Song")));
}

TEST_F(SimilarOrderTest, ANumberThatIsPartOfTheNameStays) {
    add("7 Seconds", 180, 7);
    add("7 seconds", 180, 3);
    add("Seconds", 180, 7);
    EXPECT_THAT(names(), ElementsAre(UnorderedElementsAre("7 Seconds", "7 seconds")));
}

TEST_F(SimilarOrderTest, WithoutAFlagAllTracksFormOneGroupInTheirOrder) {
    for (const char* name : {"c", "a", "b"})
        add(name);
    EXPECT_THAT(names({.issimilar = true}), ElementsAre(ElementsAre("c", "a", "b")));
}

TEST_F(SimilarOrderTest, TimesAloneGroupWithinTheTolerance) {
    for (const int seconds : {100, 300, 101, 299})
        add("x", seconds);
    EXPECT_THAT(names({.issametime = true, .issimilar = true}).size(), 2U);
}

using Groups = std::set<std::set<const TrackRecord*>>;

/// The model: keys of plain strings in a map, every pair of numbered names compared.
Groups naiveGroups(const std::vector<TrackRecord*>& records, const SearchParameters& parameters) {
    LooseKeys keys(parameters);
    const auto keyOf = [&](const TrackRecord* record) {
        std::string key;
        keys.append(key, *record);
        return key;
    };
    std::map<std::string, std::multimap<int, const TrackRecord*>> classes;
    for (const TrackRecord* record : records) {
        std::string key = keyOf(record);
        int number = 0;
        const std::size_t length = keys.leadingNumber(key, number);
        const bool isOwnOfAll = std::all_of(records.begin(), records.end(), [&](const TrackRecord* other) {
            return keyOf(other) != key || other->tracknumber == number;
        });
        if (length > 0 && isOwnOfAll) key.erase(0, length);
        if (!record->time.empty()) classes[key].emplace(record->timev, record);
    }
    Groups groups;
    for (const auto& [key, members] : classes) {
        std::vector<std::int32_t> times;
        std::vector<const TrackRecord*> sorted;
        for (const auto& [time, record] : members) {
            times.push_back(time);
            sorted.push_back(record);
        }
        std::vector<std::size_t> begins = cutByTime(times, parameters.toleranceSeconds);
        begins.push_back(sorted.size());
        for (std::size_t i = 0; i + 1 < begins.size(); ++i)
            if (begins[i + 1] - begins[i] > 1)
                groups.emplace(sorted.begin() + static_cast<std::ptrdiff_t>(begins[i]),
                               sorted.begin() + static_cast<std::ptrdiff_t>(begins[i + 1]));
    }
    return groups;
}

class SimilarOrderAgainstNaive : public SimilarOrderTest, public testing::WithParamInterface<unsigned> {
  protected:
    void fill(std::mt19937& random) {
        constexpr std::array<const char*, 10> texts = {
            "Song",   "song!", "Sóng (feat. X)",       "Song - Remaster", "1 Song", "01. Song", "Song (Live)",
            "2 Song", "???",   "Song [feat. Y] (live)"};
        constexpr std::array<const char*, 4> artists = {"The A", "A", "A, The", "B"};
        for (int i = 0; i < 60; ++i)
            add(texts[random() % texts.size()], static_cast<int>(random() % 12) - 1,
                static_cast<std::int16_t>(random() % 3), artists[random() % artists.size()]);
    }
    static Groups asSets(const std::vector<std::vector<TrackRecord*>>& groups) {
        Groups sets;
        for (const auto& group : groups)
            sets.emplace(group.begin(), group.end());
        return sets;
    }
};

TEST_P(SimilarOrderAgainstNaive, FindsTheSameGroupsInAnyOrderOfTheFile) {
    std::mt19937 random(GetParam());
    fill(random);
    SearchParameters parameters = similar;
    parameters.toleranceSeconds = static_cast<int>(GetParam() % 4);
    const Groups expected = naiveGroups(m_records, parameters);
    for (int turn = 0; turn < 3; ++turn) {
        EXPECT_EQ(asSets(groupsOf(similarOrder(m_records, parameters))), expected);
        std::shuffle(m_records.begin(), m_records.end(), random);
    }
}

TEST_P(SimilarOrderAgainstNaive, PartsNoExactCopies) {
    std::mt19937 random(GetParam() + 1000);
    fill(random);
    const GroupOrder order = similarOrder(m_records, similar);
    std::map<const TrackRecord*, int> groupOf;
    int count = 0;
    for (std::size_t place = 0; place < order.records.size(); ++place)
        groupOf[order.records[place]] = order.joined[place] ? count : ++count;
    for (const TrackRecord* a : m_records)
        for (const TrackRecord* b : m_records) {
            if (!isSameTag(*a, *b, similar)) continue;
            EXPECT_EQ(groupOf[a], groupOf[b]) << a->name.view();
        }
}

INSTANTIATE_TEST_SUITE_P(Random, SimilarOrderAgainstNaive, testing::Range(0U, 40U));

} // namespace
} // namespace songsweep
