// SPDX-License-Identifier: MIT
#include "dupes/KeptByReason.h"

#include <gtest/gtest.h>

#include <deque>

namespace songsweep {
namespace {

class KeptByReasonTest : public testing::Test {
  protected:
    void add(const char* bitrate, bool isMarked) {
        TrackRecord& record = m_records.emplace_back();
        record.bitrate = bitrate;
        record.checkbox = isMarked;
        m_rows.push_back(&record);
    }
    const TrackRecord* kept(MarkType type = MarkType::highestBitrate) const {
        return keptByReason(m_rows, {type, false, {}});
    }

    std::deque<TrackRecord> m_records;
    TrackRows m_rows;
};

TEST_F(KeptByReasonTest, IsTheCopyThatTheReasonsOfAllMarksName) {
    add("128", true);
    add("320", false);
    add("320", false);
    add("192", true);
    const TrackRecord* const named = kept();
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->bitrate, "320");
    EXPECT_FALSE(named->checkbox);
}

TEST_F(KeptByReasonTest, IsNoneWhereAMarkIsOfSomebodysHand) {
    add("128", true);
    add("320", false);
    add("320", true);
    EXPECT_EQ(kept(), nullptr);
}

TEST_F(KeptByReasonTest, IsNoneWhereTheKeptCopyIsMarkedItself) {
    add("128", true);
    add("320", true);
    add("192", false);
    EXPECT_EQ(kept(), nullptr);
}

TEST_F(KeptByReasonTest, IsNoneWhereTheReasonIsAnother) {
    add("128", true);
    add("320", false);
    add("320", false);
    m_rows.front()->isdead = true;
    EXPECT_EQ(kept(), nullptr) << "its file is missing";
    m_rows.front()->isdead = false;
    EXPECT_EQ(kept(MarkType::none), nullptr);
}

} // namespace
} // namespace songsweep
