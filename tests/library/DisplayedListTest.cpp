// SPDX-License-Identifier: MIT
#include "library/DisplayedList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DisplayedListTest : public testing::Test {
  protected:
    TrackRecord& add(const TrackRecord& record) {
        m_list.rows.push_back(&(m_list.storage->makeRecord() = record));
        return *m_list.rows.back();
    }
    std::vector<TrackRecord*>& rows() { return m_list.rows; }
    std::vector<std::string> names() const {
        return collect([](auto& row) { return row.name.string(); });
    }
    std::string bands() const {
        std::string text;
        for (const TrackRecord* row : m_list.rows)
            text += row->showid ? '1' : '0';
        return text;
    }
    template <class Get>
    std::vector<std::string> collect(Get get) const {
        std::vector<std::string> values;
        for (const TrackRecord* row : m_list.rows)
            values.push_back(get(*row));
        return values;
    }
    void addGroups(std::initializer_list<int> gids) {
        for (const int gid : gids)
            add({.gid = gid});
    }
    std::vector<int> gids() const {
        std::vector<int> values;
        for (const TrackRecord* row : m_list.rows)
            values.push_back(row->gid);
        return values;
    }

    DisplayedList m_list{.rows = {}, .storage = std::make_shared<TrackStorage>()};
};

TEST_F(DisplayedListTest, AnEmptyListStaysAsItIs) {
    realignShowID(rows());
    sortInsideGroups(rows(), Column::name, true);
    removeBrokenGroups(rows());
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(checkedCount(rows()), 0);
}

TEST_F(DisplayedListTest, BandsAlternateFromOneOn) {
    addGroups({1, 1, 2, 2, 2, 3, 3});
    realignShowID(rows());
    EXPECT_EQ(bands(), "1100011");
}

TEST_F(DisplayedListTest, BandsOfTheGroupsThatAreLeftAlternateAgain) {
    addGroups({3, 3, 7, 7, 9, 9});
    for (TrackRecord* row : rows())
        row->showid = true;
    realignShowID(rows());
    EXPECT_EQ(bands(), "110011");
}

TEST_F(DisplayedListTest, BandsAlternateOverManyRows) {
    std::mt19937 random(1);
    std::string expected;
    bool band = false;
    for (int gid = 1; expected.size() < 100'000; ++gid) {
        band = !band;
        for (auto copies = 1 + random() % 4; copies > 0; --copies) {
            m_list.rows.push_back(&m_list.storage->makeRecord());
            m_list.rows.back()->gid = gid;
            expected += band ? '1' : '0';
        }
    }
    realignShowID(rows());
    EXPECT_TRUE(bands() == expected);
}

TEST_F(DisplayedListTest, SortsInsideTheGroupsAlone) {
    add({.name = "z", .gid = 1});
    add({.name = "y", .gid = 1});
    add({.name = "b", .gid = 2});
    add({.name = "c", .gid = 2});
    add({.name = "a", .gid = 2});
    sortInsideGroups(rows(), Column::name, true);
    EXPECT_THAT(names(), ElementsAre("y", "z", "a", "b", "c"));
    EXPECT_THAT(gids(), ElementsAre(1, 1, 2, 2, 2));
    sortInsideGroups(rows(), Column::name, false);
    EXPECT_THAT(names(), ElementsAre("z", "y", "c", "b", "a"));
}

TEST_F(DisplayedListTest, KeepsGroupsInTheirOrderEvenIfTheirNumbersDescend) {
    add({.name = "b", .gid = 9});
    add({.name = "a", .gid = 9});
    add({.name = "c", .gid = 2});
    sortInsideGroups(rows(), Column::name, true);
    EXPECT_THAT(gids(), ElementsAre(9, 9, 2));
}

TEST_F(DisplayedListTest, TextColumnsTakeLettersOfAnyCaseForEqual) {
    add({.name = "abc", .artist = "1", .gid = 1});
    add({.name = "ABC", .artist = "2", .gid = 1});
    add({.name = "Abb", .artist = "3", .gid = 1});
    sortInsideGroups(rows(), Column::name, true);
    EXPECT_THAT(names(), ElementsAre("Abb", "abc", "ABC"));
    sortInsideGroups(rows(), Column::name, false);
    EXPECT_THAT(names(), ElementsAre("abc", "ABC", "Abb"));
}

TEST_F(DisplayedListTest, RatingBitRateAndPlayCountAreNumbers) {
    add({.bitrate = "10", .playcount = "9", .gid = 1, .rating = 5});
    add({.bitrate = "9", .playcount = "10", .gid = 1, .rating = 4});
    const auto bitrates = [this] { return collect([](auto& row) { return row.bitrate.string(); }); };
    sortInsideGroups(rows(), Column::bitrate, true);
    EXPECT_THAT(bitrates(), ElementsAre("9", "10"));
    sortInsideGroups(rows(), Column::playcount, true);
    EXPECT_THAT(bitrates(), ElementsAre("10", "9"));
    sortInsideGroups(rows(), Column::rating, true);
    EXPECT_THAT(bitrates(), ElementsAre("9", "10"));
}

TEST_F(DisplayedListTest, SizesAreComparedAsTexts) {
    for (const char* size : {"900", "1000", "", "95"})
        add({.size = size, .gid = 1});
    sortInsideGroups(rows(), Column::sizestring, true);
    EXPECT_THAT(collect([](auto& row) { return row.size.string(); }), ElementsAre("", "1000", "900", "95"));
}

TEST_F(DisplayedListTest, TimeAndDateAddedAreComparedByTheValueBehindThem) {
    add({.name = "long", .time = "10:00", .dateaddedv = 5, .timev = 600, .gid = 1, .hasdate = true});
    add({.name = "short", .time = "9:00", .dateaddedv = 0, .timev = 540, .gid = 1});
    add({.name = "old", .time = "11:00", .dateaddedv = -5, .timev = 660, .gid = 1, .hasdate = true});
    sortInsideGroups(rows(), Column::time, true);
    EXPECT_THAT(names(), ElementsAre("short", "long", "old"));
    sortInsideGroups(rows(), Column::dateadded, true);
    EXPECT_THAT(names(), ElementsAre("old", "short", "long"));
}

TEST_F(DisplayedListTest, FlagsAreNumbers) {
    add({.name = "a", .gid = 1, .checkbox = true, .hasartwork = false});
    add({.name = "b", .gid = 1, .checkbox = false, .hasartwork = true});
    sortInsideGroups(rows(), Column::checkbox, true);
    EXPECT_THAT(names(), ElementsAre("b", "a"));
    sortInsideGroups(rows(), Column::hasartwork, true);
    EXPECT_THAT(names(), ElementsAre("a", "b"));
}

TEST_F(DisplayedListTest, TheDeadTrackColumnLeavesTheOrder) {
    add({.name = "b", .gid = 1, .isdead = true});
    add({.name = "a", .gid = 1});
    sortInsideGroups(rows(), Column::dtrack, true);
    sortInsideGroups(rows(), Column::dtrack, false);
    EXPECT_THAT(names(), ElementsAre("b", "a"));
}

TEST_F(DisplayedListTest, EveryColumnKeepsGroupsTogetherAndAllRows) {
    std::mt19937 random(11);
    std::vector<Text> texts = {"a", "B", "10", "9", "", "ä"};
    for (int i = 0; i < 300; ++i) {
        const Text text = texts[random() % texts.size()];
        add({.name = text,
             .artist = text,
             .album = text,
             .bitrate = text,
             .size = text,
             .playcount = text,
             .location = text,
             .dateaddedv = static_cast<int>(random() % 3),
             .timev = i % 7,
             .gid = 1 + i / 3});
    }
    std::vector<TrackRecord*> all = rows();
    const std::vector<int> before = gids();
    for (const Column column : allColumns) {
        sortInsideGroups(rows(), column, random() % 2 == 0);
        EXPECT_EQ(gids(), before);
        EXPECT_THAT(rows(), testing::UnorderedElementsAreArray(all));
    }
}

TEST_F(DisplayedListTest, AMillionRowsOfOneGroupAreSorted) {
    for (int i = 0; i < 1'000'000; ++i)
        m_list.rows.push_back(&m_list.storage->makeRecord());
    for (std::size_t i = 0; i < rows().size(); ++i) {
        rows()[i]->gid = 1;
        rows()[i]->name = m_list.storage->store("Song " + std::to_string(i * 7919 % 1'000'003 + 1'000'000));
    }
    sortInsideGroups(rows(), Column::name, true);
    EXPECT_TRUE(std::is_sorted(rows().begin(), rows().end(), [](const TrackRecord* a, const TrackRecord* b) {
        return a->name.view() < b->name.view();
    }));
}

TEST_F(DisplayedListTest, GroupsOfOneAreRemoved) {
    addGroups({1, 2, 2, 3, 4, 4, 4, 5});
    removeBrokenGroups(rows());
    EXPECT_THAT(gids(), ElementsAre(2, 2, 4, 4, 4));
}

TEST_F(DisplayedListTest, ARowThatIsLeftAloneGoesToo) {
    addGroups({1, 1, 1, 2, 2});
    rows().erase(rows().begin(), rows().begin() + 2);
    removeBrokenGroups(rows());
    EXPECT_THAT(gids(), ElementsAre(2, 2));
}

TEST_F(DisplayedListTest, NothingIsLeftOfSingleRowsAlone) {
    addGroups({1, 2, 3});
    removeBrokenGroups(rows());
    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(DisplayedListTest, CountsCheckedRows) {
    add({.checkbox = true});
    add({});
    add({.checkbox = true});
    EXPECT_EQ(checkedCount(rows()), 2);
}

TEST(StatusText, CountsSongsUntilOneIsChecked) {
    EXPECT_EQ(statusText(0, 12), "12 songs");
    EXPECT_EQ(statusText(3, 12), "3 of 12 marked");
    EXPECT_EQ(statusText(0, 0), "0 songs");
}

} // namespace
} // namespace songsweep
