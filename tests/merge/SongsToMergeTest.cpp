// SPDX-License-Identifier: MIT
#include "merge/SongsToMerge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <deque>

namespace songsweep {
namespace {

class SongsToMergeTest : public testing::Test {
  protected:
    void add(int gid, const char* pid, bool isMarked) {
        TrackRecord& record = m_records.emplace_back();
        record.gid = gid;
        record.pid = pid;
        record.checkbox = isMarked;
        m_rows.push_back(&record);
    }

    std::deque<TrackRecord> m_records;
    std::vector<TrackRecord*> m_rows;
};

TEST_F(SongsToMergeTest, AreThoseThatKeepExactlyOneCopy) {
    add(1, "A1", true);
    add(1, "A2", false);
    add(1, "A3", true);
    add(2, "B1", true);
    add(2, "B2", false);
    add(2, "B3", false);
    add(3, "C1", true);
    add(3, "C2", true);
    add(4, "D1", false);
    add(4, "D2", true);
    const SongsToMerge songs(m_rows);
    ASSERT_EQ(songs.songs.size(), 2U);
    EXPECT_EQ(songs.songs[0].kept.pid, "A2");
    ASSERT_EQ(songs.songs[0].removed.size(), 2U);
    EXPECT_EQ(songs.songs[0].removed[1].pid, "A3");
    EXPECT_EQ(songs.songs[0].removed[1].number, 1U);
    EXPECT_EQ(songs.songs[1].removed[0].number, 5U) << "numbers are those among all marked rows";
    EXPECT_EQ(songs.keepSeveral, 1U);
}

TEST_F(SongsToMergeTest, OfSeveralThatStayTheOneIsKeptThatTheReasonsName) {
    add(1, "A1", true);
    add(1, "A2", false);
    add(1, "A3", false);
    const auto third = [](const std::vector<TrackRecord*>& copies) -> const TrackRecord* {
        return copies[2];
    };
    const SongsToMerge songs(m_rows, nullptr, third);
    ASSERT_EQ(songs.songs.size(), 1U);
    EXPECT_EQ(songs.songs[0].kept.pid, "A3");
    EXPECT_EQ(songs.keepSeveral, 0U);
    const auto none = [](const std::vector<TrackRecord*>&) -> const TrackRecord* { return nullptr; };
    EXPECT_EQ(SongsToMerge(m_rows, nullptr, none).keepSeveral, 1U);
}

TEST_F(SongsToMergeTest, AreRecordingsWhereSoundsWereCompared) {
    add(1, "A1", true);
    add(1, "B1", false);
    add(1, "A2", false);
    add(1, "B2", true);
    add(1, "C1", true);
    const std::array sets{1, 2, 1, 2, 0};
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        m_rows[row]->sound = {sets[row], SoundVerdict::same, 100};
    const SongsToMerge songs(m_rows);
    ASSERT_EQ(songs.songs.size(), 2U) << "a copy that could not be compared gives nobody anything";
    EXPECT_EQ(songs.songs[0].kept.pid, "A2");
    EXPECT_EQ(songs.songs[0].removed.at(0).pid, "A1");
    EXPECT_EQ(songs.songs[1].kept.pid, "B1");
    EXPECT_EQ(songs.songs[1].removed.at(0).number, 1U);
}

TEST_F(SongsToMergeTest, ACopyThatCannotBeNamedStays) {
    add(1, "", true);
    add(1, "A2", false);
    add(1, "A3", true);
    add(2, "B1", true);
    add(2, "0", false);
    const SongsToMerge songs(m_rows);
    EXPECT_TRUE(songs.songs.empty());
    EXPECT_EQ(songs.keepSeveral, 1U);
}

} // namespace
} // namespace songsweep
