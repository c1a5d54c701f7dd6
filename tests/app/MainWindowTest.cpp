// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "app/MainWindowFixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <utility>

namespace songsweep::test {
namespace {

using MainWindowTest = MainWindowFixture;

TEST_F(MainWindowTest, OpensWithTheEmptyState) {
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    EXPECT_TRUE(control<QToolButton>("searchButton").isEnabled());
    EXPECT_FALSE(control<QToolButton>("autoMarkButton").isEnabled());
    EXPECT_FALSE(control<QToolButton>("deleteButton").isEnabled());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Songsweep"));
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(MainWindowTest, ReturnInTheEmptyStateStartsASearch) {
    QSignalSpy searches(&window, &MainWindow::startButtonClick);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(searches.size(), 1);
}

TEST_F(MainWindowTest, EveryPageHasItsTurn) {
    showSearching();
    EXPECT_EQ(page(), QStringLiteral("progressPage"));
    EXPECT_EQ(focus(), QStringLiteral("formprogressCancelButton"));
    window.endProgress();
    EXPECT_EQ(page(), QStringLiteral("blankPage"));
    window.setPerformLabelVisible(true);
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    showSearching();
    showResults(list);
    EXPECT_EQ(page(), QStringLiteral("tableviewContainer"));
    EXPECT_EQ(focus(), QStringLiteral("tableview"));
}

TEST_F(MainWindowTest, ToolbarAndStripStayInPlaceThroughAllStates) {
    const auto places = [this] {
        return std::make_pair(control<QWidget>("toolbar").geometry(), control<QWidget>("strip").geometry());
    };
    const auto atFirst = places();
    showSearching();
    EXPECT_EQ(places(), atFirst);
    window.endProgress();
    EXPECT_EQ(places(), atFirst);
    showResults(list);
    EXPECT_EQ(places(), atFirst);
    showResults({});
    EXPECT_EQ(places(), atFirst);
}

TEST_F(MainWindowTest, ClosingSaysSo) {
    QSignalSpy closes(&window, &MainWindow::closed);
    item("closeMenuitem").trigger();
    EXPECT_EQ(closes.size(), 1);
    EXPECT_FALSE(window.isVisible());
    window.present();
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace songsweep::test
