// SPDX-License-Identifier: MIT
#include "app/ProgressSheet.h"

#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

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
