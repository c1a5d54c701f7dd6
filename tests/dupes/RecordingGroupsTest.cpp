// SPDX-License-Identifier: MIT
#include "dupes/RecordingGroups.h"

#include "dupes/MarkingRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace songsweep {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// Group 1: a recording of three copies, one of another recording, one in doubt, one that could not be
/// compared. Group 2: a recording of two.
class RecordingGroupsTest : public testing::Test {
  protected:
    static constexpr std::array<SoundFinding, 8> sounds = {{{1, SoundVerdict::same},
                                                            {1, SoundVerdict::same},
                                                            {1, SoundVerdict::same},
                                                            {2, SoundVerdict::differs},
                                                            {3, SoundVerdict::unsure},
                                                            {0, SoundVerdict::notReadable},
                                                            {1, SoundVerdict::same},
                                                            {1, SoundVerdict::same}}};

    RecordingGroupsTest() {
        for (std::size_t row = 0; row < m_records.size(); ++row) {
            m_records[row].gid = row < 6 ? 1 : 2;
            m_records[row].bitrate = row % 2 == 0 ? "128" : "320";
            m_records[row].location = "/x.mp3";
            m_records[row].sound = sounds[row];
            m_rows.push_back(&m_records[row]);
        }
    }

    std::vector<bool> checked() const {
        std::vector<bool> boxes;
        for (const TrackRecord& record : m_records)
            boxes.push_back(record.checkbox);
        return boxes;
    }
    std::vector<std::int32_t> gids() const {
        std::vector<std::int32_t> numbers;
        for (const TrackRecord& record : m_records)
            numbers.push_back(record.gid);
        return numbers;
    }

    std::array<TrackRecord, 8> m_records;
    std::vector<TrackRecord*> m_rows;
};

TEST_F(RecordingGroupsTest, BringsTheCopiesOfARecordingTogether) {
    for (std::size_t row = 0; row < 6; ++row)
        m_records[row].sound.set = std::array{2, 0, 1, 2, 0, 1}[row];
    EXPECT_THAT(recordingOrder(m_rows), ElementsAre(2, 5, 0, 3, 1, 4, 6, 7));
}

TEST_F(RecordingGroupsTest, EachRecordingIsAGroupWhileTheyAreSplit) {
    RecordingGroups groups(m_rows);
    groups.split();
    EXPECT_THAT(gids(), ElementsAre(-1, -1, -1, -2, -3, -4, -5, -5));
    groups.join();
    EXPECT_THAT(gids(), ElementsAre(1, 1, 1, 1, 1, 1, 2, 2));
}

TEST_F(RecordingGroupsTest, OneGroupAloneCanBeSplit) {
    RecordingGroups groups(m_rows);
    groups.split({6, 8});
    EXPECT_THAT(gids(), ElementsAre(1, 1, 1, 1, 1, 1, -5, -5));
    groups.join({6, 8});
    EXPECT_THAT(gids(), ElementsAre(1, 1, 1, 1, 1, 1, 2, 2));
}

TEST_F(RecordingGroupsTest, CopiesThatCouldNotBeComparedAreNoRecordingTogether) {
    for (TrackRecord& record : m_records)
        record.sound = {0, SoundVerdict::notReadable};
    RecordingGroups groups(m_rows);
    groups.split();
    EXPECT_THAT(gids(), ElementsAre(-1, -2, -3, -4, -5, -6, -7, -8));
}

TEST_F(RecordingGroupsTest, AGroupToWhichNobodyListenedStaysOne) {
    for (std::size_t row = 0; row < 6; ++row)
        m_records[row].sound = {};
    RecordingGroups groups(m_rows);
    groups.split();
    EXPECT_THAT(gids(), ElementsAre(-1, -1, -1, -1, -1, -1, -2, -2));
    for (TrackRecord& record : m_records)
        record.checkbox = true;
    groups.keepLastCopies();
    EXPECT_THAT(checked(), ElementsAre(true, true, true, true, true, true, false, false));
    EXPECT_EQ(recordingsLosingEveryCopy(m_rows), 0);
}

TEST_F(RecordingGroupsTest, ARuleKeepsTheBestOfEachRecording) {
    RecordingGroups groups(m_rows);
    groups.split();
    markItems(m_rows, MarkType::highestBitrate, true);
    EXPECT_THAT(checked(), ElementsAre(true, false, true, false, false, false, true, false));
}

TEST_F(RecordingGroupsTest, NoRecordingLosesItsLastCopy) {
    RecordingGroups groups(m_rows);
    m_records[5].isdead = true;
    groups.split();
    markItemsByKind(m_rows, "MP3", false);
    groups.keepLastCopies();
    EXPECT_THAT(checked(), Each(false));
}

TEST_F(RecordingGroupsTest, CountsMarkedCopiesOfRecordingsThatNobodyKeeps) {
    EXPECT_EQ(recordingsLosingEveryCopy(m_rows), 0);
    for (const std::size_t row : {1, 2, 3, 5, 6, 7})
        m_records[row].checkbox = true;
    std::swap(m_rows[0], m_rows[3]);
    EXPECT_EQ(recordingsLosingEveryCopy(m_rows), 4) << "3, 5, and both of group 2";
}

TEST_F(RecordingGroupsTest, TellsWhyACopyIsKept) {
    m_records[0].checkbox = true;
    EXPECT_THAT(recordingReason(m_rows, 0), IsEmpty());
    EXPECT_THAT(recordingReason(m_rows, 1), IsEmpty());
    EXPECT_EQ(recordingReason(m_rows, 2), "kept: another recording than the copy below");
    EXPECT_EQ(recordingReason(m_rows, 4), "kept: perhaps another recording than the copy below");
    EXPECT_EQ(recordingReason(m_rows, 5), "kept: its sound could not be compared");
    EXPECT_THAT(recordingReason(m_rows, 7), IsEmpty());
    m_records[4].gid = m_records[5].gid = 3;
    EXPECT_EQ(recordingReason(m_rows, 3), "kept: another recording than the copy above");
}

} // namespace
} // namespace songsweep
