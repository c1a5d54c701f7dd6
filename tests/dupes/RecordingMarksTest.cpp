// SPDX-License-Identifier: MIT
#include "dupes/RecordingMarks.h"

#include "dupes/MarkRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::ElementsAre;

const MarkChoice highest = {MarkType::highestBitrate, true, ""};

/// A group of two recordings, their copies mixed as a sorted table has them, and one that nobody heard.
class RecordingMarksTest : public testing::Test {
  protected:
    RecordingMarksTest() {
        m_low.sound = m_high.sound = {1, SoundVerdict::same};
        m_liveLow.sound = m_live.sound = {2, SoundVerdict::same};
    }

    std::vector<bool> checked() const {
        return {m_low.checkbox,  m_liveLow.checkbox,  m_high.checkbox,
                m_live.checkbox, m_plainLow.checkbox, m_plain.checkbox};
    }

    test::MarkRows m_rows;
    TrackRecord& m_low = m_rows.add(1, {.bitrate = "128", .location = "/x.mp3"});
    TrackRecord& m_liveLow = m_rows.add(1, {.bitrate = "64", .location = "/x.mp3"});
    TrackRecord& m_high = m_rows.add(1, {.bitrate = "320", .location = "/x.mp3"});
    TrackRecord& m_live = m_rows.add(1, {.bitrate = "192", .location = "/x.mp3"});
    TrackRecord& m_plainLow = m_rows.add(2, {.bitrate = "128", .location = "/x.mp3"});
    TrackRecord& m_plain = m_rows.add(2, {.bitrate = "320", .location = "/x.mp3"});
};

TEST_F(RecordingMarksTest, KeepTheBestOfEachRecordingInWhateverOrder) {
    markRecordings(m_rows.rows(), highest);
    EXPECT_THAT(checked(), ElementsAre(true, true, false, false, true, false));
    EXPECT_EQ(m_live.gid, 1);
}

TEST_F(RecordingMarksTest, NeverTheLastCopyOfARecording) {
    m_liveLow.sound.set = 3;
    m_liveLow.sound.verdict = SoundVerdict::unsure;
    markRecordings(m_rows.rows(), {MarkType::kind, false, "MP3"});
    EXPECT_THAT(checked(), ElementsAre(false, false, false, false, true, true));
}

TEST_F(RecordingMarksTest, TheEffectIsWhatMarkingDoesAndChangesNothing) {
    m_live.checkbox = true;
    const MarkEffect effect = recordingsEffect(m_rows.rows(), highest);
    EXPECT_EQ(effect.marked, 3);
    EXPECT_FALSE(effect.inForce);
    EXPECT_THAT(checked(), ElementsAre(false, false, false, true, false, false));
    markRecordings(m_rows.rows(), highest);
    EXPECT_TRUE(recordingsEffect(m_rows.rows(), highest).inForce);
}

} // namespace
} // namespace songsweep
