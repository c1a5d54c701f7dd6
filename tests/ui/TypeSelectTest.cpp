// SPDX-License-Identifier: MIT
#include "ui/TypeSelect.h"

#include "library/DisplayedList.h"

#include <gtest/gtest.h>

#include <deque>

namespace songsweep::test {

namespace {

class TypeSelectTest : public ::testing::Test {
  protected:
    TypeSelectTest() {
        for (const char* name : {"Amber", "kites", "Été", "Kind", "", "zoo"}) {
            TrackRecord record;
            record.name = name;
            m_records.push_back(record);
            rows.push_back(&m_records.back());
        }
    }

    std::vector<TrackRecord*> rows;
    TypeSelect typeSelect;

  private:
    std::deque<TrackRecord> m_records;
};

} // namespace

TEST_F(TypeSelectTest, FindsTheNextNameWithoutRegardToCase) {
    EXPECT_EQ(typeSelect.find(rows, 0, false, QStringLiteral("K")), 1);
}

TEST_F(TypeSelectTest, LettersInQuickSuccessionMakeOneBeginning) {
    EXPECT_EQ(typeSelect.find(rows, 0, false, QStringLiteral("k")), 1);
    EXPECT_EQ(typeSelect.find(rows, 1, false, QStringLiteral("i")), 1);
    EXPECT_EQ(typeSelect.find(rows, 1, false, QStringLiteral("n")), 3);
}

TEST_F(TypeSelectTest, TheSameLetterAgainStepsThroughItsNames) {
    EXPECT_EQ(typeSelect.find(rows, 0, false, QStringLiteral("k")), 1);
    EXPECT_EQ(typeSelect.find(rows, 1, false, QStringLiteral("k")), 3);
    EXPECT_EQ(typeSelect.find(rows, 3, false, QStringLiteral("k")), 1);
}

TEST_F(TypeSelectTest, GoesAroundTheEnd) {
    EXPECT_EQ(typeSelect.find(rows, 5, false, QStringLiteral("a")), 0);
}

TEST_F(TypeSelectTest, TheCurrentRowIsFoundOnlyWhereItCounts) {
    EXPECT_EQ(typeSelect.find(rows, 1, true, QStringLiteral("k")), 1);
    TypeSelect fresh;
    EXPECT_EQ(fresh.find(rows, 1, false, QStringLiteral("k")), 3);
}

TEST_F(TypeSelectTest, FindsLettersBeyondAscii) {
    EXPECT_EQ(typeSelect.find(rows, 0, false, QString::fromUtf8("É")), 2);
}

TEST_F(TypeSelectTest, FindsNothingWhereNoNameFits) {
    EXPECT_EQ(typeSelect.find(rows, 0, false, QStringLiteral("x")), -1);
    EXPECT_EQ(TypeSelect().find({}, -1, false, QStringLiteral("x")), -1);
    EXPECT_EQ(TypeSelect().find(rows, 0, false, QString()), -1);
}

} // namespace songsweep::test
