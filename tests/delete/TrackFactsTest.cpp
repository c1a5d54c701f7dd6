// SPDX-License-Identifier: MIT
#include "delete/TrackFacts.h"

#include "delete/DeleteFixture.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

class TrackFactsTest : public test::DeleteFixture {
  protected:
    /// A row whose file is missing.
    void addDead(int gid, const char* pid, bool marked) { add(gid, pid, marked).isdead = true; }
    int lost() const { return groupsLosingEveryCopy(m_list.rows); }
};

TEST_F(TrackFactsTest, AGroupWithEveryRowMarkedLosesEveryCopy) {
    add(1, "A", true);
    add(1, "B", true);
    add(2, "C", true);
    add(2, "D", false);
    add(3, "E", true);
    EXPECT_EQ(lost(), 2);
}

TEST_F(TrackFactsTest, AnEntryWithoutItsFileIsNoCopyThatIsLeft) {
    add(1, "A", true);
    addDead(1, "B", false);
    EXPECT_EQ(lost(), 1);
}

TEST_F(TrackFactsTest, AWorkingCopyThatStaysIsEnough) {
    addDead(1, "A", true);
    add(1, "B", false);
    addDead(1, "C", false);
    EXPECT_EQ(lost(), 0);
}

TEST_F(TrackFactsTest, WhereNoCopyWorksAnyEntryThatStaysIsEnough) {
    addDead(1, "A", true);
    addDead(1, "B", false);
    addDead(2, "C", true);
    addDead(2, "D", true);
    EXPECT_EQ(lost(), 1);
}

TEST_F(TrackFactsTest, AnEntryThatSharesItsIdWithAMarkedOneStays) {
    add(1, "00A1B2C3D4E5F607", true);
    add(1, "00a1b2c3d4e5f607", false);
    EXPECT_EQ(lost(), 0);
}

TEST_F(TrackFactsTest, AGroupLosesSomeCopiesWhereOthersStay) {
    add(1, "A", true);
    add(1, "B", false);
    add(1, "C", false);
    add(2, "D", true);
    add(2, "E", true);
    add(3, "F", false);
    add(3, "G", false);
    add(4, "H", false);
    add(4, "I", true);
    EXPECT_EQ(groupsLosingSomeCopies(m_list.rows), 2);
}

TEST_F(TrackFactsTest, TheFactsCountMarkedTracksAndLostGroupsAndNoFiles) {
    addFile("A", true, "a.mp3");
    addFile("B", true, "b.mp3");
    add(2, "C", true);
    add(2, "D", false);
    EXPECT_EQ(trackFacts(m_list.rows), (DeleteConfirmationFacts{.tracks = 3, .groupsLosingEveryCopy = 1}));
    EXPECT_EQ(trackFacts({}), DeleteConfirmationFacts());
}

} // namespace
} // namespace songsweep
