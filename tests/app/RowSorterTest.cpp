// SPDX-License-Identifier: MIT
#include "app/RowSorter.h"

#include "support/EventLoop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace songsweep::test {
namespace {

class RowSorterTest : public ::testing::Test {
  protected:
    /// Rows of groups of two, in the wrong order.
    DisplayedList rows(int count) {
        DisplayedList list{{}, std::make_shared<TrackStorage>()};
        for (int row = 0; row < count; ++row) {
            TrackRecord& record = list.storage->makeRecord();
            record.gid = row / 2 + 1;
            record.timev = -row;
            record.checkbox = row % 2 == 0;
            list.rows.push_back(&record);
        }
        return list;
    }
    bool isSorted() const {
        return !taken.empty() && std::is_sorted(taken.begin(), taken.end(), [](const auto* a, const auto* b) {
            return a->gid != b->gid ? a->gid < b->gid : a->timev < b->timev;
        });
    }

    static constexpr int many = 50'000;
    RowSorter::Rows taken;
    RowSorter sorter{[this](RowSorter::Rows sorted) { taken = std::move(sorted); }};
};

TEST_F(RowSorterTest, AShortListIsSortedAtOnce) {
    sorter.sort(rows(10), Column::time, true);
    EXPECT_EQ(taken.size(), 10U);
    EXPECT_TRUE(isSorted());
}

TEST_F(RowSorterTest, ALongListComesByTheEventLoop) {
    sorter.sort(rows(many), Column::time, true);
    EXPECT_TRUE(taken.empty());
    ASSERT_TRUE(runEventLoopUntil([this] { return !taken.empty(); }));
    EXPECT_EQ(taken.size(), many);
    EXPECT_TRUE(isSorted());
}

TEST_F(RowSorterTest, IsWaitedForOrForgotten) {
    const DisplayedList list = rows(many);
    sorter.sort(list, Column::time, true);
    sorter.drop();
    handleWaitingEvents();
    EXPECT_TRUE(taken.empty());
    sorter.sort(list, Column::time, true);
    sorter.finish();
    EXPECT_TRUE(isSorted());
}

TEST_F(RowSorterTest, CheckBoxesWhichMayChangeAreSortedAtOnce) {
    sorter.sort(rows(many), Column::checkbox, true);
    ASSERT_EQ(taken.size(), many);
    EXPECT_FALSE(taken[0]->checkbox);
    EXPECT_TRUE(taken[1]->checkbox);
}

} // namespace
} // namespace songsweep::test
