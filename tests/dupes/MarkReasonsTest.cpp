// SPDX-License-Identifier: MIT
#include "dupes/MarkReasons.h"

#include "dupes/MarkRows.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep {
namespace {

const MarkChoice highest = {MarkType::highestBitrate, true, ""};

class MarkReasonsTest : public ::testing::Test {
  protected:
    MarkReasons markBy(const MarkChoice& choice) {
        applyMarkChoice(m_rows.rows(), choice);
        return MarkReasons(DisplayedList{m_rows.rows(), nullptr}, choice);
    }

    test::MarkRows m_rows;
    TrackRecord& m_low = m_rows.add(1, {.bitrate = "128"});
    TrackRecord& m_high = m_rows.add(1, {.bitrate = "320"});
};

TEST_F(MarkReasonsTest, SayWhyACopyGoesAndWhyTheOtherStays) {
    MarkReasons reasons = markBy(highest);
    EXPECT_EQ(reasons.of(m_low), "lower bit rate than the kept copy: 128 against 320");
    EXPECT_EQ(reasons.of(m_high), "kept: 320 against 128");
}

TEST_F(MarkReasonsTest, ACopyThatTiesStaysBecauseOneDoes) {
    TrackRecord& same = m_rows.add(2, {.bitrate = "256"});
    m_rows.add(2, {.bitrate = "256"});
    EXPECT_EQ(markBy(highest).of(same), "kept: one copy stays");
}

TEST_F(MarkReasonsTest, ACopyThatARuleLeavesAloneSaysSo) {
    TrackRecord& other = m_rows.add(1, {.bitrate = "320"});
    MarkReasons reasons = markBy({MarkType::highestBitrate, false, ""});
    EXPECT_EQ(reasons.of(m_high), "kept: 320 against 128");
    EXPECT_EQ(reasons.of(other), "kept: the rule has nothing against it");
}

TEST_F(MarkReasonsTest, ARuleOfWordsHasNoValuesToCompare) {
    m_low.hasartwork = true;
    MarkReasons reasons = markBy({MarkType::withArtwork, true, ""});
    EXPECT_EQ(reasons.of(m_low), "kept: the other copies go by the rule");
}

TEST_F(MarkReasonsTest, AreTheSameByTheirIndex) {
    MarkReasons reasons = markBy(highest);
    reasons.index();
    EXPECT_EQ(reasons.of(m_low), "lower bit rate than the kept copy: 128 against 320");
    const TrackRecord foreign;
    EXPECT_EQ(reasons.of(foreign), "");
}

TEST_F(MarkReasonsTest, StayTrueWhenAMarkIsSetByHand) {
    MarkReasons reasons = markBy(highest);
    m_low.checkbox = false;
    EXPECT_EQ(reasons.of(m_low), "unmarked by hand");
    m_high.checkbox = true;
    EXPECT_EQ(reasons.of(m_high), "marked by hand");
}

TEST_F(MarkReasonsTest, AreOfRecordingsWhereSoundsWereCompared) {
    TrackRecord& live = m_rows.add(1, {.bitrate = "64"});
    m_low.sound = m_high.sound = {1, SoundVerdict::same};
    live.sound = {2, SoundVerdict::differs};
    m_low.checkbox = true;
    MarkReasons reasons({m_rows.rows(), nullptr}, highest, MarkReasons::Recordings::compared);
    EXPECT_EQ(reasons.of(m_low), "lower bit rate than the kept copy: 128 against 320");
    EXPECT_EQ(reasons.of(m_high), "kept: 320 against 128");
    EXPECT_EQ(reasons.of(live), "") << "its recording has no other copy";
    EXPECT_EQ(live.gid, 1);
}

TEST_F(MarkReasonsTest, SayThatARecordingWouldHaveNoCopyLeft) {
    m_low.location = m_high.location = "/x.mp3";
    m_low.sound = m_high.sound = {1, SoundVerdict::same};
    MarkReasons reasons({m_rows.rows(), nullptr}, {MarkType::kind, false, "MP3"},
                        MarkReasons::Recordings::compared);
    EXPECT_EQ(reasons.of(m_low), "kept: no copy of its recording would be left");
}

TEST_F(MarkReasonsTest, OfAnotherListAreNone) {
    const TrackRecord other;
    EXPECT_EQ(markBy(highest).of(other), "");
}

} // namespace
} // namespace songsweep
