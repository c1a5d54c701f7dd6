// SPDX-License-Identifier: MIT
// The confirmation by keyboard: what decides, what has the focus, what is read out.
#include "DeleteConfirmationFixture.h"
#include "support/Widgets.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace songsweep {
namespace {

using test::child;
using DeleteConfirmationTest = test::DeleteConfirmationFixture;
using test::threeTracks;

TEST_F(DeleteConfirmationTest, CancelsOnReturnAndOnEscape) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        DeleteConfirmation sheet;
        sheet.setFacts(threeTracks());
        QSignalSpy cancels(&sheet, &DeleteConfirmation::rejected);
        QSignalSpy deletions(&sheet, &DeleteConfirmation::deleteRequested);
        test::open(sheet);
        test::press(sheet, key);
        EXPECT_EQ(cancels.count(), 1);
        EXPECT_EQ(deletions.count(), 0);
        EXPECT_FALSE(sheet.isVisible());
    }
}

TEST_F(DeleteConfirmationTest, CancelsOnReturnAlsoWithTheFocusOnDelete) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    QSignalSpy deletions(&sheet, &DeleteConfirmation::deleteRequested);
    test::open(sheet);
    child<QPushButton>(sheet, "delConfOkButton").setFocus();
    test::press(sheet, Qt::Key_Return);
    EXPECT_EQ(deletions.count(), 0);
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(DeleteConfirmationTest, DeletesByItsMnemonicWithTheOptionsChosen) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    QSignalSpy deletions(&sheet, &DeleteConfirmation::deleteRequested);
    test::open(sheet);
    test::press(sheet, Qt::Key_F, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet.deletesFiles(); })); // a mnemonic shows the click first
    test::press(sheet, Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return deletions.count() == 1; }));
    EXPECT_TRUE(deletions[0][0].toBool());
    EXPECT_TRUE(deletions[0][1].toBool());
}

TEST_F(DeleteConfirmationTest, HasCancelAsItsOnlyFilledButtonWithTheFocusAtEveryOpening) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    for (int opening = 0; opening < 2; ++opening) {
        test::open(sheet);
        EXPECT_EQ(test::filledButtons(sheet), QStringList(QStringLiteral("&Cancel")));
        EXPECT_EQ(sheet.focusWidget(), &child<QPushButton>(sheet, "delConfCancelButton"));
        child<QPushButton>(sheet, "delConfOkButton").setFocus();
        EXPECT_EQ(test::filledButtons(sheet), QStringList(QStringLiteral("&Cancel")));
        sheet.hide();
    }
}

TEST_F(DeleteConfirmationTest, IsAWindowModalSheetThatReadsItselfOut) {
    QWidget window;
    DeleteConfirmation sheet(&window);
    sheet.setFacts(threeTracks());
    EXPECT_EQ(sheet.windowType(), Qt::Sheet);
    EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
    EXPECT_EQ(test::accessibleDescription(sheet),
              QStringLiteral(
                  "Delete 3 tracks from iTunes? They also leave every playlist. iTunes cannot undo this."));
}

TEST_F(DeleteConfirmationTest, VisitsTheOptionsAndThenTheButtons) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    child<QCheckBox>(sheet, "delConfFileCK").setChecked(true);
    child<QToolButton>(sheet, "delConfOptionsButton").click();
    test::open(sheet);
    const QStringList expected{QStringLiteral("delConfCancelButton"), QStringLiteral("delConfOkButton"),
                               QStringLiteral("delConfFileCK"), QStringLiteral("delConfOptionsButton"),
                               QStringLiteral("delConfTrashSharedCK")};
    EXPECT_EQ(test::tabOrder(sheet), expected);
}

} // namespace
} // namespace songsweep
