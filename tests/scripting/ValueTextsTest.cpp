// SPDX-License-Identifier: MIT
#include "scripting/ValueTexts.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(ValueTextsTest, WritesNumbersAsAppleScriptDoes) {
    EXPECT_EQ(realText(0.0), "0.0");
    EXPECT_EQ(realText(3.0), "3.0");
    EXPECT_EQ(realText(-0.25), "-0.25");
    EXPECT_EQ(realText(9999.5), "9999.5");
    EXPECT_EQ(realText(10000.0), "1.0E+4");
    EXPECT_EQ(realText(-123456.75), "-1.2345675E+5");
    EXPECT_EQ(realText(0.001), "0.001");
    EXPECT_EQ(realText(0.0001), "1.0E-4");
    EXPECT_EQ(realText(1e100), "1.0E+100");
}

TEST(ValueTextsTest, WritesNoonMidnightAndLeapDays) {
    // 2024-02-29 begins 3792009600 seconds after 1904-01-01.
    constexpr std::int64_t leapDay = 3'792'009'600;
    EXPECT_EQ(dateText(leapDay), "Thursday, February 29, 2024 at 12:00:00 AM");
    EXPECT_EQ(dateText(leapDay + 43200), "Thursday, February 29, 2024 at 12:00:00 PM");
    EXPECT_EQ(dateText(leapDay + 86399), "Thursday, February 29, 2024 at 11:59:59 PM");
    EXPECT_EQ(dateText(-1), "Thursday, December 31, 1903 at 11:59:59 PM");
}

} // namespace
} // namespace songsweep
