// SPDX-License-Identifier: MIT
#include "app/ProgressSheet.h"

#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <limits>

namespace songsweep {
namespace {

using test::child;

class ProgressSheetTest : public test::ThemedTest {};

TEST_F(ProgressSheetTest, ShowsItsTitleAndAPercentage) {
    ProgressSheet sheet;
    sheet.setProgressText("Deleting...");
    sheet.setProgressValue(61.6);
    EXPECT_EQ(child<QLabel>(sheet, "progressLabel").text(), QStringLiteral("Deleting..."));
    EXPECT_EQ(child<QProgressBar>(sheet, "progress").value(), 61) << "100 is kept for the end";
}

TEST_F(ProgressSheetTest, ShowsNothingDoneForNoNumberAndHoldsToTheBarsEnds) {
    ProgressSheet sheet;
    const auto& bar = child<QProgressBar>(sheet, "progress");
    sheet.setProgressValue(140);
    EXPECT_EQ(bar.value(), 100);
    sheet.setProgressValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(bar.value(), 0);
    sheet.setProgressValue(std::numeric_limits<double>::infinity());
    EXPECT_EQ(bar.value(), 100);
    sheet.setProgressValue(-3);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(ProgressSheetTest, CancelsByButtonByEscapeAndByClosing) {
    ProgressSheet sheet;
    QSignalSpy cancels(&sheet, &ProgressSheet::rejected);
    test::open(sheet);
    child<QPushButton>(sheet, "progressCancelButton").click();
    test::open(sheet);
    test::press(sheet, Qt::Key_Escape);
    test::open(sheet);
    sheet.close();
    EXPECT_EQ(cancels.count(), 3);
}

TEST_F(ProgressSheetTest, IsNotCancelledByBeingPutAway) {
    ProgressSheet sheet;
    QSignalSpy cancels(&sheet, &ProgressSheet::rejected);
    test::open(sheet);
    sheet.hide();
    EXPECT_EQ(cancels.count(), 0);
}

TEST_F(ProgressSheetTest, IsAWindowModalSheetWithoutAFilledButton) {
    QWidget window;
    ProgressSheet sheet(&window);
    EXPECT_EQ(sheet.windowType(), Qt::Sheet);
    EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
    window.show();
    sheet.show();
    EXPECT_TRUE(test::filledButtons(sheet).isEmpty());
    EXPECT_EQ(test::accessibleName(child<QWidget>(sheet, "progress")), QStringLiteral("Progress"));
    EXPECT_EQ(test::accessibleName(child<QWidget>(sheet, "progressCancelButton")),
              QStringLiteral("Cancel deletion"));
}

/// A sheet over a window that has the keyboard, as at the moment after it was asked to open.
class UnfocusedProgressSheetTest : public ProgressSheetTest {
  protected:
    void SetUp() override {
        ProgressSheetTest::SetUp();
        m_sheet.beginProgress();
        test::open(m_window);
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_sheet.isActiveWindow(); }));
    }

    QWidget m_window;
    ProgressSheet m_sheet;
    QSignalSpy m_ended{&m_sheet, &ProgressSheet::ended};
    QSignalSpy m_cancels{&m_sheet, &ProgressSheet::rejected};
};

TEST_F(UnfocusedProgressSheetTest, StaysUntilItHasTheKeyboard) {
    m_sheet.endProgress();
    EXPECT_TRUE(m_sheet.isVisible());
    EXPECT_EQ(m_ended.count(), 0);
    m_sheet.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_sheet.isVisible(); }));
    EXPECT_EQ(m_ended.count(), 1);
}

TEST_F(UnfocusedProgressSheetTest, DoesNotWaitForAKeyboardThatNeverComes) {
    m_sheet.endProgress();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_sheet.isVisible(); }));
    EXPECT_FALSE(m_sheet.isActiveWindow());
    EXPECT_EQ(m_ended.count(), 1);
}

TEST_F(UnfocusedProgressSheetTest, CancelsNothingThatHasEnded) {
    m_sheet.endProgress();
    m_sheet.reject();
    EXPECT_FALSE(m_sheet.isVisible());
    EXPECT_EQ(m_ended.count(), 1);
    EXPECT_EQ(m_cancels.count(), 0);
}

TEST_F(UnfocusedProgressSheetTest, StaysForADeletionThatBeginsMeanwhile) {
    m_sheet.endProgress();
    m_sheet.beginProgress();
    m_sheet.reject();
    EXPECT_EQ(m_cancels.count(), 1);
    EXPECT_EQ(m_ended.count(), 0);
}

TEST_F(ProgressSheetTest, DoesNotCancelOnReturn) {
    ProgressSheet sheet;
    QSignalSpy cancels(&sheet, &ProgressSheet::rejected);
    test::open(sheet);
    test::press(sheet, Qt::Key_Return);
    EXPECT_EQ(cancels.count(), 0);
    EXPECT_TRUE(sheet.isVisible());
}

} // namespace
} // namespace songsweep
