// SPDX-License-Identifier: MIT
#include "app/RowFilter.h"

#include "support/SampleRows.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using Kind = RowFilter::Kind;

/// The numbers of the groups that are left.
std::vector<int> left(const std::vector<TrackRecord*>& rows, const RowFilter& filter) {
    FilterPass pass(rows, filter);
    while (!pass.step()) {
    }
    std::vector<int> numbers;
    for (std::size_t group = 0; group < pass.groups().size(); ++group)
        if (pass.groups()[group]) numbers.push_back(static_cast<int>(group));
    return numbers;
}

class RowFilterTest : public ::testing::Test {
  protected:
    RowFilterTest() {
        for (TrackRecord* row : list.rows)
            row->checkbox = row->isdead = false;
    }
    int groupOf(std::size_t row) const { return list.rows[row]->gid; }

    DisplayedList list = test::sampleRows();
};

TEST_F(RowFilterTest, FindsATextInAnyColumnWithoutRegardToCase) {
    list.rows[5]->location = "/music/Über Alles/05.mp3";
    list.rows[9]->album = "ÜBERGANG";
    EXPECT_EQ(left(list.rows, {Kind::all, "über"}), (std::vector<int>{groupOf(5), groupOf(9)}));
    EXPECT_EQ(left(list.rows, {Kind::all, "nowhere at all"}), std::vector<int>());
}

TEST_F(RowFilterTest, FindsValuesAsTheyAreShown) {
    for (TrackRecord* row : list.rows)
        row->size = "1";
    list.rows[3]->size = "5242880";
    EXPECT_EQ(left(list.rows, {Kind::all, "5.1 MB"}), std::vector<int>{groupOf(3)});
}

TEST_F(RowFilterTest, TellsKindsApart) {
    list.rows[2]->checkbox = true;
    list.rows[6]->isdead = true;
    EXPECT_EQ(left(list.rows, {Kind::marked, ""}), std::vector<int>{groupOf(2)});
    EXPECT_EQ(left(list.rows, {Kind::missing, ""}), std::vector<int>{groupOf(6)});
    EXPECT_EQ(left(list.rows, {Kind::losingEveryCopy, ""}), std::vector<int>());
    list.rows[3]->checkbox = true;
    EXPECT_EQ(left(list.rows, {Kind::losingEveryCopy, ""}), std::vector<int>{groupOf(2)});
    EXPECT_EQ(left(list.rows, {Kind::marked, "no such text"}), std::vector<int>());
}

TEST_F(RowFilterTest, ShowsTheSongsThatSomebodyFoundToLoseEveryCopy) {
    EXPECT_EQ(left(list.rows, {Kind::losingEveryCopy, "", {groupOf(6)}}), std::vector<int>{groupOf(6)});
}

TEST_F(RowFilterTest, GoesThroughManyRowsInSteps) {
    const DisplayedList many = test::manyRows(6000, 2);
    FilterPass pass(many.rows, {Kind::all, "Song 5999"});
    int steps = 1;
    while (!pass.step())
        ++steps;
    EXPECT_GT(steps, 2);
    EXPECT_TRUE(pass.groups().back());
}

} // namespace
} // namespace songsweep
