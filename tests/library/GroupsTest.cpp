// SPDX-License-Identifier: MIT
#include "library/Groups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <utility>

namespace songsweep {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

/// Rows of these groups.
class GroupsTest : public ::testing::Test {
  protected:
    void show(const std::vector<int>& groups) {
        for (const int gid : groups) {
            m_records.emplace_back().gid = gid;
            m_rows.push_back(&m_records.back());
        }
    }
    std::vector<std::pair<std::size_t, std::size_t>> groups() const {
        std::vector<std::pair<std::size_t, std::size_t>> found;
        for (const RowGroup group : groupsOf(m_rows))
            found.emplace_back(group.first, group.end);
        return found;
    }

    std::deque<TrackRecord> m_records;
    std::vector<TrackRecord*> m_rows;
};

TEST_F(GroupsTest, NoRowsHaveNoGroup) { EXPECT_THAT(groups(), IsEmpty()); }

TEST_F(GroupsTest, FollowEachOtherAsTheRowsDo) {
    show({7, 7, 7, 2, 5, 5});
    EXPECT_THAT(groups(), ElementsAre(Pair(0, 3), Pair(3, 4), Pair(4, 6)));
}

TEST_F(GroupsTest, OfOneNumberThatDoNotTouchAreTwo) {
    show({1, 1, 2, 1});
    EXPECT_THAT(groups(), ElementsAre(Pair(0, 2), Pair(2, 3), Pair(3, 4)));
}

TEST_F(GroupsTest, AGroupEndsAtTheSameRowWhereverItIsEntered) {
    show({1, 1, 1, 2});
    EXPECT_EQ(groupEnd(m_rows, 0), 3U);
    EXPECT_EQ(groupEnd(m_rows, 2), 3U);
    EXPECT_EQ(groupEnd(m_rows, 3), 4U);
}

TEST_F(GroupsTest, RowsThatWereSeenMayChange) {
    show({1, 1, 2, 2, 3});
    std::vector<std::size_t> sizes;
    for (const RowGroup group : groupsOf(m_rows)) {
        sizes.push_back(group.size());
        for (std::size_t row = group.first; row < group.end; ++row)
            m_rows[row] = m_rows.back();
    }
    EXPECT_THAT(sizes, ElementsAre(2, 2, 1));
}

} // namespace
} // namespace songsweep
