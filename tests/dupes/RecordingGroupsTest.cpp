// SPDX-License-Identifier: MIT
#include "dupes/RecordingGroups.h"

#include "dupes/MarkingRules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace songsweep {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

/// Group 1: a recording of three copies, one of another recording, one in doubt, one that could not be
/// compared. Group 2: a recording of two.
class RecordingGroupsTest : public testing::Test {
  protected:
    RecordingGroupsTest() {
        for (std::size_t row = 0; row < m_records.size(); ++row) {
            m_records[row].gid = row < 6 ? 1 : 2;
            m_records[row].bitrate = row % 2 == 0 ? "128" : "320";
            m_records[row].location = "/x.mp3";
            m_rows.push_back(&m_records[row]);
        }
    }

    static ComparedSounds sounds() {
        using enum SoundVerdict;
        return {.places = {{1, false},
                           {1, false},
                           {1, false},
                           {2, false},
                           {3, true},
                           {0, false},
                           {1, false},
                           {1, false}},
                .verdicts = {same, same, same, differs, unsure, notReadable, same, same}};
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
    ComparedSounds mixed = sounds();
    for (std::size_t row = 0; row < 6; ++row)
        mixed.places[row].set = std::array{2, 0, 1, 2, 0, 1}[row];
    const std::vector<std::size_t> order = recordingOrder(m_rows, mixed);
    EXPECT_THAT(order, ElementsAre(2, 5, 0, 3, 1, 4, 6, 7));
    EXPECT_EQ(arranged(mixed, order).places[1].set, 1);
    EXPECT_EQ(arranged(mixed, order).verdicts[1], SoundVerdict::notReadable);
}

TEST_F(RecordingGroupsTest, EachRecordingIsAGroupWhileTheyAreSplit) {
    RecordingGroups groups(m_rows, sounds());
    groups.split();
    EXPECT_THAT(gids(), ElementsAre(1, 1, 1, 2, 3, 4, 5, 5));
    groups.join();
    EXPECT_THAT(gids(), ElementsAre(1, 1, 1, 1, 1, 1, 2, 2));
}

TEST_F(RecordingGroupsTest, CopiesThatCouldNotBeComparedAreNoRecordingTogether) {
    ComparedSounds none = sounds();
    for (SoundPlace& place : none.places)
        place.set = 0;
    RecordingGroups groups(m_rows, none);
    groups.split();
    EXPECT_THAT(gids(), ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

TEST_F(RecordingGroupsTest, ARuleKeepsTheBestOfEachRecording) {
    RecordingGroups groups(m_rows, sounds());
    groups.split();
    markItems(m_rows, MarkType::highestBitrate, true);
    EXPECT_THAT(checked(), ElementsAre(true, false, true, false, false, false, true, false));
}

TEST_F(RecordingGroupsTest, NoRecordingLosesItsLastCopy) {
    RecordingGroups groups(m_rows, sounds());
    m_records[5].isdead = true;
    groups.split();
    markItemsByKind(m_rows, "MP3", false);
    groups.keepLastCopies();
    EXPECT_THAT(checked(), Each(false));
}

TEST_F(RecordingGroupsTest, TellsWhyACopyIsKept) {
    RecordingGroups groups(m_rows, sounds());
    m_records[0].checkbox = true;
    EXPECT_THAT(groups.keptReason(0), IsEmpty());
    EXPECT_THAT(groups.keptReason(1), IsEmpty());
    EXPECT_EQ(groups.keptReason(2), "kept: another recording than the copy below");
    EXPECT_EQ(groups.keptReason(4), "kept: perhaps another recording than the copy below");
    EXPECT_EQ(groups.keptReason(5), "kept: its sound could not be compared");
    EXPECT_THAT(groups.keptReason(7), IsEmpty());
    m_records[4].gid = m_records[5].gid = 3;
    EXPECT_EQ(RecordingGroups(m_rows, sounds()).keptReason(3), "kept: another recording than the copy above");
}

} // namespace
} // namespace songsweep
