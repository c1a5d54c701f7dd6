// SPDX-License-Identifier: MIT
#include "library/GroupedNumber.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(GroupedNumber, GoesByTheLanguage) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(groupedNumber(999), "999");
    EXPECT_EQ(groupedNumber(1'234'567), "1,234,567");
    EXPECT_EQ(groupedCount(1, "track"), "1 track");
    EXPECT_EQ(groupedCount(12'000, "track"), "12,000 tracks");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(groupedNumber(1'234'567), "1.234.567");
    QLocale::setDefault(QLocale::system());
}

} // namespace
} // namespace songsweep
