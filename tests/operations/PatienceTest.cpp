// SPDX-License-Identifier: MIT
#include "operations/Patience.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

/// Spins on something that never comes, and is slow enough to look at for a yield to seem slow.
bool waitForASlowMachine(Patience& patience) {
    return patience.spinUntil([first = true]() mutable {
        if (!first) std::this_thread::sleep_for(std::chrono::microseconds(200));
        first = false;
        return false;
    });
}

TEST(PatienceTest, saysAtOnceThatWhatIsReadyIsReady) {
    Patience patience{std::chrono::microseconds(30)};
    EXPECT_TRUE(patience.spinUntil([] { return true; }));
}

TEST(PatienceTest, givesUpWhenTheLimitIsOver) {
    Patience patience{std::chrono::microseconds(30)};
    EXPECT_FALSE(patience.spinUntil([] { return false; }));
}

TEST(PatienceTest, looksOnceMoreAfterTheLimit) {
    Patience patience{std::chrono::microseconds(0)};
    int looks = 0;
    EXPECT_TRUE(patience.spinUntil([&looks] { return ++looks > 1; }));
}

TEST(PatienceTest, looksOnlyOnceWhileItRestsAfterASlowYield) {
    Patience patience{std::chrono::seconds(10)};
    EXPECT_FALSE(waitForASlowMachine(patience));
    ASSERT_TRUE(patience.isSpent());

    int looks = 0;
    EXPECT_FALSE(patience.spinUntil([&looks] { return ++looks > 1; }));
    EXPECT_EQ(looks, 1);
}

TEST(PatienceTest, spinsAgainAfterItsRest) {
    Patience patience{std::chrono::seconds(10)};
    while (!patience.isSpent())
        waitForASlowMachine(patience);
    int rests = 0;
    while (patience.isSpent())
        ++rests;
    EXPECT_GT(rests, 100);
    int looks = 0;
    EXPECT_TRUE(patience.spinUntil([&looks] { return ++looks > 1; }));
}

TEST(PatienceTest, restsLongerEachTimeTheMachineIsStillBusy) {
    Patience patience{std::chrono::seconds(10)};
    int last = 0;
    for (int time = 0; time < 3; ++time) {
        while (!patience.isSpent())
            waitForASlowMachine(patience);
        int rests = 0;
        while (patience.isSpent())
            ++rests;
        EXPECT_GT(rests, last);
        last = rests;
    }
}

} // namespace
} // namespace songsweep
