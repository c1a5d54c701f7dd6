// SPDX-License-Identifier: MIT
#include "delete/DeleteFixture.h"
#include "delete/TrackFacts.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

class TrackFactsTest : public test::DeleteFixture {
  protected:
    int lost() const { return groupsLosingEveryCopy(m_list.rows); }
};

TEST_F(TrackFactsTest, aGroupWithEveryRowMarkedLosesEveryCopy) {
    add(1, "A", true);
    add(1, "B", true);
    add(2, "C", true);
    add(2, "D", false);
    add(3, "E", true);
    EXPECT_EQ(lost(), 2);
}

TEST_F(TrackFactsTest, theFactsCountMarkedTracksAndLostGroupsAndNoFiles) {
    addFile("A", true, "a.mp3");
    addFile("B", true, "b.mp3");
    add(2, "C", true);
    add(2, "D", false);
    EXPECT_EQ(trackFacts(m_list.rows), (DeleteConfirmationFacts{.tracks = 3, .groupsLosingEveryCopy = 1}));
    EXPECT_EQ(trackFacts({}), DeleteConfirmationFacts());
}

} // namespace
} // namespace songsweep
