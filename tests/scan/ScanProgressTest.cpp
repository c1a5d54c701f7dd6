// SPDX-License-Identifier: MIT
#include "scan/ScanProgress.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace songsweep::test {

using namespace std::chrono_literals;

TEST(ScanProgress, GroupsTheDigitsOfItsNumbers) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(scanProgressText(3800, 6000, 0ms), "Reading 3,800 of 6,000 files…");
    EXPECT_EQ(scanProgressText(0, 1, 0ms), "Reading 0 of 1 file…");
    QLocale::setDefault(QLocale::system());
}

TEST(ScanProgress, TellsTheTimeLeftOnceItIsKnown) {
    EXPECT_EQ(scanProgressText(50, 100, 10s), "Reading 50 of 100 files…, less than a minute left");
    EXPECT_EQ(scanProgressText(50, 100, 180s), "Reading 50 of 100 files…, about 3 minutes left");
    EXPECT_EQ(scanProgressText(1, 100, 180s), "Reading 1 of 100 files…, about 4 hours left");
    EXPECT_EQ(scanProgressText(50, 100, 1s), "Reading 50 of 100 files…");
    EXPECT_EQ(scanProgressText(100, 100, 180s), "Reading 100 of 100 files…");
}

TEST(ScanProgress, CountsTheFilesThatCouldNotBeRead) {
    EXPECT_EQ(unreadFilesText(3), "3 files could not be read");
    EXPECT_EQ(unreadFilesText(1), "1 file could not be read");
    EXPECT_EQ(unreadFilesText(0), "");
}

} // namespace songsweep::test
