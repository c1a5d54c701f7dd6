// SPDX-License-Identifier: MIT
#include "operations/SpinThenPark.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

/// Spins on something that never comes, and is slow enough to look at for a yield to seem slow.
bool waitForASlowMachine(SpinThenPark& wait) {
    return wait.spinUntil([first = true]() mutable {
        if (!first) std::this_thread::sleep_for(std::chrono::microseconds(200));
        first = false;
        return false;
    });
}

TEST(SpinThenParkTest, SaysAtOnceThatWhatIsReadyIsReady) {
    SpinThenPark wait{std::chrono::microseconds(30)};
    EXPECT_TRUE(wait.spinUntil([] { return true; }));
}

TEST(SpinThenParkTest, GivesUpWhenTheLimitIsOver) {
    SpinThenPark wait{std::chrono::microseconds(30)};
    EXPECT_FALSE(wait.spinUntil([] { return false; }));
}

TEST(SpinThenParkTest, LooksOnceMoreAfterTheLimit) {
    SpinThenPark wait{std::chrono::microseconds(0)};
    int looks = 0;
    EXPECT_TRUE(wait.spinUntil([&looks] { return ++looks > 1; }));
}

TEST(SpinThenParkTest, LooksOnlyOnceWhileItRestsAfterASlowYield) {
    SpinThenPark wait{std::chrono::seconds(10)};
    EXPECT_FALSE(waitForASlowMachine(wait));
    ASSERT_TRUE(wait.parksAtOnce());

    int looks = 0;
    EXPECT_FALSE(wait.spinUntil([&looks] { return ++looks > 1; }));
    EXPECT_EQ(looks, 1);
}

TEST(SpinThenParkTest, SpinsAgainAfterItsRest) {
    SpinThenPark wait{std::chrono::seconds(10)};
    while (!wait.parksAtOnce())
        waitForASlowMachine(wait);
    int rests = 0;
    while (wait.parksAtOnce())
        ++rests;
    EXPECT_GT(rests, 100);
    int looks = 0;
    EXPECT_TRUE(wait.spinUntil([&looks] { return ++looks > 1; }));
}

TEST(SpinThenParkTest, RestsLongerEachTimeTheMachineIsStillBusy) {
    SpinThenPark wait{std::chrono::seconds(10)};
    int last = 0;
    for (int time = 0; time < 3; ++time) {
        while (!wait.parksAtOnce())
            waitForASlowMachine(wait);
        int rests = 0;
        while (wait.parksAtOnce())
            ++rests;
        EXPECT_GT(rests, last);
        last = rests;
    }
}

} // namespace
} // namespace songsweep
