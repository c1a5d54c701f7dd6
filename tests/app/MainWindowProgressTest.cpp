// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <limits>

namespace songsweep::test {
namespace {

using MainWindowProgressTest = MainWindowFixture;

TEST_F(MainWindowProgressTest, TheProgressStaysInPlaceWhenThePhaseChanges) {
    showSearching();
    window.setProgressText("Searching...");
    QApplication::processEvents();
    const QRect bar = control<QProgressBar>("formprogress").geometry();
    const QPoint phase = control<QLabel>("progressInfoLabel").pos();
    window.setProgressText("Checking missing tracks...");
    window.setProgressValue(100);
    QApplication::processEvents();
    EXPECT_EQ(control<QProgressBar>("formprogress").geometry(), bar);
    EXPECT_EQ(control<QLabel>("progressInfoLabel").pos(), phase);
}

TEST_F(MainWindowProgressTest, TheProgressValueEndsWhereItsBarEnds) {
    for (const QSize size : {QSize(760, 420), QSize(1100, 680), QSize(1280, 760)}) {
        window.resize(size);
        showSearching();
        window.setProgressValue(58);
        QApplication::processEvents();
        const QRect bar = control<QProgressBar>("formprogress").geometry();
        EXPECT_EQ(control<QLabel>("progressValueLabel").geometry().right(), bar.right());
        EXPECT_EQ(control<QLabel>("progressInfoLabel").geometry().left(), bar.left());
        EXPECT_EQ(control<QToolButton>("formprogressCancelButton").geometry().left(), bar.right() + 1 + 8);
    }
}

TEST_F(MainWindowProgressTest, TheBarShowsItsOwnValue) {
    window.setProgressValue(58.3);
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 58);
    EXPECT_EQ(control<QLabel>("progressValueLabel").text(), QStringLiteral("58 %"));
    window.setProgressValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 0);
    window.setProgressValue(130);
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 100);
}

TEST_F(MainWindowProgressTest, TheBarIsInTheMiddleOfThePage) {
    showSearching();
    QApplication::processEvents();
    const QWidget& bar = control<QProgressBar>("formprogress");
    EXPECT_NEAR(bar.geometry().center().x(), bar.parentWidget()->rect().center().x(), 1);
}

TEST_F(MainWindowProgressTest, EscapeCancelsTheSearch) {
    QSignalSpy cancels(&window, &MainWindow::cancelformButtonClick);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(cancels.size(), 0) << "nothing is being searched";
    showSearching();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(cancels.size(), 1);
}

} // namespace
} // namespace songsweep::test
