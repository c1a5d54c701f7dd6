// SPDX-License-Identifier: MIT
#include "libraryfile/WriteSchedule.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using namespace std::chrono_literals;
using Time = WriteSchedule::Clock::time_point;

TEST(WriteSchedule, NothingIsDueWithoutADeletion) { EXPECT_FALSE(WriteSchedule().due()); }

TEST(WriteSchedule, WritesTwoSecondsAfterTheLastDeletion) {
    WriteSchedule schedule;
    schedule.changed(Time(10s));
    EXPECT_EQ(schedule.due(), Time(12s));
    schedule.changed(Time(11s));
    EXPECT_EQ(schedule.due(), Time(13s));
}

TEST(WriteSchedule, WritesEveryThirtySecondsInALongDeletion) {
    WriteSchedule schedule;
    for (int second = 0; second <= 29; ++second)
        schedule.changed(Time(std::chrono::seconds(second)));
    EXPECT_EQ(schedule.due(), Time(30s));
    schedule.written();
    EXPECT_FALSE(schedule.due());
    for (int second = 31; second <= 60; ++second)
        schedule.changed(Time(std::chrono::seconds(second)));
    EXPECT_EQ(schedule.due(), Time(61s));
}

TEST(WriteSchedule, TakesOtherTimes) {
    WriteSchedule schedule({1s, 5s});
    schedule.changed(Time(0s));
    schedule.changed(Time(4500ms));
    EXPECT_EQ(schedule.due(), Time(5s));
}

} // namespace
} // namespace songsweep
