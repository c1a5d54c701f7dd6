// SPDX-License-Identifier: MIT
#include "dupes/MarkHistory.h"

#include "dupes/MarkRows.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using By = MarkHistory::By;

class MarkHistoryTest : public ::testing::Test {
  protected:
    MarkHistoryTest() {
        for (int row = 0; row < 4; ++row)
            m_rows.add(1);
    }
    void mark(const std::string& name, std::size_t row, bool value = true) {
        m_history.record(By::hand, name, m_rows.rows(), [&] { m_rows.rows()[row]->checkbox = value; });
    }

    test::MarkRows m_rows;
    MarkHistory m_history;
};

TEST_F(MarkHistoryTest, TakesStepsBackAndDoesThemAgain) {
    mark("one", 0);
    mark("two", 1);
    EXPECT_EQ(m_history.undoName(), "two");
    m_history.undo();
    EXPECT_EQ(m_rows.checks(), "x---");
    EXPECT_EQ(m_history.marksByHand(), 1);
    EXPECT_EQ(m_history.undoName(), "one");
    EXPECT_EQ(m_history.redoName(), "two");
    m_history.undo();
    m_history.undo();
    EXPECT_EQ(m_rows.checks(), "----");
    EXPECT_EQ(m_history.undoName(), "");
    m_history.redo();
    m_history.redo();
    m_history.redo();
    EXPECT_EQ(m_rows.checks(), "xx--");
    EXPECT_EQ(m_history.marksByHand(), 2);
    EXPECT_EQ(m_history.redoName(), "");
}

TEST_F(MarkHistoryTest, ANewStepForgetsWhatWasTakenBack) {
    mark("one", 0);
    m_history.undo();
    mark("two", 1);
    EXPECT_EQ(m_history.redoName(), "");
    m_history.undo();
    EXPECT_EQ(m_rows.checks(), "----");
}

TEST_F(MarkHistoryTest, WhatChangesNothingIsNoStep) {
    mark("one", 0);
    mark("again", 0);
    EXPECT_EQ(m_history.undoName(), "one");
}

TEST_F(MarkHistoryTest, TheOldestOfManyStepsIsForgotten) {
    for (int step = 0; step < 101; ++step)
        mark(std::to_string(step), 0, step % 2 == 0);
    int steps = 0;
    for (; !m_history.undoName().empty(); ++steps)
        m_history.undo();
    EXPECT_EQ(steps, 100);
    EXPECT_EQ(m_rows.checks(), "x---");
}

TEST_F(MarkHistoryTest, ARuleReplacesTheMarksMadeByHandAndGivesThemBack) {
    mark("one", 0);
    mark("two", 1);
    m_history.record(By::rule, "rule", m_rows.rows(), [&] {
        for (TrackRecord* row : m_rows.rows())
            row->checkbox = row == m_rows.rows()[3];
    });
    EXPECT_EQ(m_history.marksByHand(), 0);
    m_history.undo();
    EXPECT_EQ(m_rows.checks(), "xx--");
    EXPECT_EQ(m_history.marksByHand(), 2);
    m_history.redo();
    EXPECT_EQ(m_rows.checks(), "---x");
    EXPECT_EQ(m_history.marksByHand(), 0);
    mark("three", 3, false);
    m_history.undo();
    EXPECT_EQ(m_history.marksByHand(), 0) << "the rule made that mark";
}

TEST_F(MarkHistoryTest, OfRowsThatAreLeftTheMarksMadeByHandAreKnown) {
    mark("one", 0);
    mark("two", 1);
    m_history.keepOnly({m_rows.rows()[1]});
    EXPECT_EQ(m_history.marksByHand(), 1);
    EXPECT_EQ(m_history.undoName(), "");
}

TEST_F(MarkHistoryTest, IsForgottenWithTheRows) {
    mark("one", 0);
    m_history.clear();
    m_history.undo();
    EXPECT_EQ(m_rows.checks(), "x---");
}

} // namespace
} // namespace songsweep
