// SPDX-License-Identifier: MIT
#include "WindowsFixture.h"
#include "dupes/MarkingRules.h"
#include "support/EventLoop.h"
#include "support/TestData.h"
#include "ui/SWTableView.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <filesystem>
#include <map>

namespace songsweep::test {

namespace {

using WindowActionsTest = WindowsFixture;

std::vector<int> groupNumbers(const std::vector<TrackRecord*>& rows) {
    std::vector<int> numbers;
    for (const TrackRecord* record : rows)
        numbers.push_back(record->gid);
    return numbers;
}

} // namespace

TEST_F(WindowActionsTest, ASearchFromTheDialogShowsTheGroups) {
    press("searchButton");
    EXPECT_TRUE(windows.paramWindow().isVisible());
    press("paramSearchButton");
    EXPECT_FALSE(windows.paramWindow().isVisible());
    EXPECT_EQ(page(), QStringLiteral("progressPage"));
    EXPECT_FALSE(button("searchButton").isEnabled());
    ASSERT_TRUE(runEventLoopUntil([this] { return page() == QStringLiteral("tableviewContainer"); }));
    ASSERT_FALSE(rows().empty());
    EXPECT_EQ(window().tableModel().rows(), rows());
    EXPECT_EQ(label("statusBottomLabel"), QStringLiteral("%1 songs").arg(rows().size()));
    EXPECT_EQ(label("searchedLabel"), QStringLiteral("Library: same name, artist, time"));
    EXPECT_TRUE(button("searchButton").isEnabled());
    EXPECT_TRUE(button("autoMarkButton").isEnabled());
    EXPECT_FALSE(button("deleteButton").isEnabled());
}

TEST_F(WindowActionsTest, CancelInTheDialogOnlyClosesIt) {
    press("searchButton");
    press("paramCancelButton");
    EXPECT_FALSE(windows.paramWindow().isVisible());
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    EXPECT_FALSE(controller->isSearching());
}

TEST_F(WindowActionsTest, EscapeDuringASearchEndsInTheEmptyState) {
    startSearch();
    press("formprogressCancelButton");
    EXPECT_EQ(page(), QStringLiteral("blankPage"));
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isWorking(); }));
    handleWaitingEvents();
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    EXPECT_TRUE(button("searchButton").isEnabled());
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(WindowActionsTest, SpaceChecksAMixedSelectionAndThenUnchecksIt) {
    search();
    click(1, Column::checkbox);
    ASSERT_TRUE(isChecked(1));
    select(0, 2);
    QTest::keyClick(&window().tableview(), Qt::Key_Space);
    EXPECT_TRUE(isChecked(0) && isChecked(1) && isChecked(2));
    EXPECT_EQ(window().selectedRows(), (std::vector<int>{0, 1, 2}));
    QTest::keyClick(&window().tableview(), Qt::Key_Space);
    EXPECT_EQ(checkedRows(), 0);
}

TEST_F(WindowActionsTest, SpaceWithoutASelectionChangesNothing) {
    search();
    QSignalSpy reloads(&window().tableModel(), &QAbstractItemModel::dataChanged);
    QTest::keyClick(&window().tableview(), Qt::Key_Space);
    EXPECT_EQ(checkedRows(), 0);
    EXPECT_EQ(reloads.size(), 1);
}

TEST_F(WindowActionsTest, TheSpaceBarLeavesTheStatusAndAClickRefreshesIt) {
    search();
    const QString before = label("statusBottomLabel");
    select(0, 1);
    QTest::keyClick(&window().tableview(), Qt::Key_Space);
    EXPECT_EQ(label("statusBottomLabel"), before);
    EXPECT_FALSE(button("deleteButton").isEnabled());
    click(2, Column::checkbox);
    EXPECT_EQ(label("statusBottomLabel"), QStringLiteral("3 of %1 marked").arg(rows().size()));
    EXPECT_TRUE(button("deleteButton").isEnabled());
}

TEST_F(WindowActionsTest, AnEditOfAnotherColumnChangesNothingButReloads) {
    search();
    QSignalSpy reloads(&window().tableModel(), &QAbstractItemModel::dataChanged);
    const std::string name = rows()[0]->name.string();
    window().tableModel().setData(window().tableModel().index(0, 2), QStringLiteral("Other"), Qt::EditRole);
    EXPECT_EQ(rows()[0]->name.string(), name);
    EXPECT_EQ(checkedRows(), 0);
    EXPECT_EQ(reloads.size(), 1);
}

TEST_F(WindowActionsTest, ClicksOnTitlesSortAscendingThenDescending) {
    search();
    const TrackHeaderView& header = window().tableview().header();
    const std::vector<int> groups = groupNumbers(rows());
    clickTitle(Column::playcount);
    EXPECT_EQ(header.sortedColumn(), Column::playcount);
    EXPECT_TRUE(header.isAscending());
    clickTitle(Column::playcount);
    EXPECT_FALSE(header.isAscending());
    clickTitle(Column::name);
    EXPECT_EQ(header.sortedColumn(), Column::name);
    EXPECT_TRUE(header.isAscending());
    EXPECT_EQ(groupNumbers(rows()), groups) << "groups stay together and in their order";
    EXPECT_EQ(window().tableModel().rows(), rows());
}

TEST_F(WindowActionsTest, AfterANewSearchTheIndicatorIsGoneAndAClickGoesOnFromTheLast) {
    search();
    clickTitle(Column::playcount);
    search();
    EXPECT_FALSE(window().tableview().header().sortedColumn());
    clickTitle(Column::playcount);
    EXPECT_EQ(window().tableview().header().sortedColumn(), Column::playcount);
    EXPECT_FALSE(window().tableview().header().isAscending());
}

TEST_F(WindowActionsTest, TheMarkDialogMarksAndStaysOpen) {
    search();
    press("autoMarkButton");
    ASSERT_TRUE(windows.markWindow().isVisible());
    const int expected = markEffect(rows(), windows.markWindow().choice()).marked;
    const QString counts = QStringLiteral("%1 of %2").arg(expected).arg(rows().size());
    EXPECT_EQ(label("markLiveLabel"), QStringLiteral("Would mark ") + counts);
    press("markMarkButton");
    EXPECT_TRUE(windows.markWindow().isVisible());
    EXPECT_EQ(checkedRows(), expected);
    EXPECT_EQ(label("markLiveLabel"), QStringLiteral("Marked ") + counts);
    EXPECT_EQ(label("statusBottomLabel"), counts + QStringLiteral(" marked"));
}

TEST_F(WindowActionsTest, TheMarkDialogKnowsTheMarksSetWhileItWasClosed) {
    search();
    press("autoMarkButton");
    press("markMarkButton");
    press("markCancelButton");
    const auto& line = *window().findChild<QLabel*>(QStringLiteral("markLiveLabel"));
    const QString before = line.text();
    Q_EMIT window().markMenuClick(3);
    EXPECT_EQ(line.text(), before) << "nobody looks at it";
    press("autoMarkButton");
    EXPECT_TRUE(line.text().startsWith(QStringLiteral("Would mark "))) << line.text().toStdString();
}

TEST_F(WindowActionsTest, AFolderToMarkIsChosenInAChooser) {
    press("autoMarkButton");
    windows.markWindow().findChild<QAbstractButton*>(QStringLiteral("markFolderButton"))->click();
    EXPECT_EQ(log.lines().back(), "Select mark folder");
    auto* chooser = windows.markWindow().findChild<QFileDialog*>();
    ASSERT_NE(chooser, nullptr);
    Q_EMIT chooser->fileSelected(QStringLiteral("/music/Old/"));
    chooser->close();
    EXPECT_EQ(windows.markWindow().choice(), (MarkChoice{MarkType::folder, true, "/music/Old"}));
}

TEST_F(WindowActionsTest, ARuleThatMatchesNoTrackIsToldInTheLiveLine) {
    search();
    press("autoMarkButton");
    windows.markWindow().setFolder(QStringLiteral("/nowhere"));
    EXPECT_TRUE(label("markLiveLabel").startsWith(QStringLiteral("No track matches. Would mark ")));
    press("markBitrateRB");
    EXPECT_TRUE(label("markLiveLabel").startsWith(QStringLiteral("Would mark ")));
}

TEST_F(WindowActionsTest, AMarkByARuleSaysWhy) {
    search();
    press("autoMarkButton");
    press("markMarkButton");
    const auto reason = [this](int row) {
        return window().tableModel().index(row, 0).data(Qt::ToolTipRole).toString();
    };
    int reasons = 0;
    for (int row = 0; row < static_cast<int>(rows().size()); ++row) {
        EXPECT_EQ(reason(row).isEmpty(), !isChecked(row)) << row;
        reasons += reason(row).isEmpty() ? 0 : 1;
    }
    EXPECT_GT(reasons, 0);
}

TEST_F(WindowActionsTest, TheConfirmationCanBeCancelled) {
    search();
    click(0, Column::checkbox);
    press("deleteButton");
    ASSERT_TRUE(windows.deleteConfirmation().isVisible());
    press("delConfCancelButton");
    EXPECT_FALSE(windows.deleteConfirmation().isVisible());
    EXPECT_FALSE(controller->isDeleting());
    EXPECT_EQ(checkedRows(), 1);
}

TEST_F(WindowActionsTest, TheWarningOfTheConfirmationLeadsToTheSongsThatLoseEveryCopy) {
    search();
    const std::int32_t song = rows().back()->gid;
    std::size_t copies = 0;
    for (std::size_t row = 0; row < rows().size(); ++row) {
        if (rows()[row]->gid != song) continue;
        controller->setObjectValue(true, Column::checkbox, static_cast<int>(row));
        ++copies;
    }
    press("deleteButton");
    press("delConfLostSongsButton");
    EXPECT_FALSE(windows.deleteConfirmation().isVisible());
    EXPECT_FALSE(controller->isDeleting());
    EXPECT_EQ(checkedRows(), static_cast<int>(copies)) << "the marks stay";
    ASSERT_TRUE(runEventLoopUntil([&] { return window().tableModel().rows().size() == copies; }));
    EXPECT_EQ(window().tableModel().rows().front()->gid, song);
    EXPECT_EQ(window().focusWidget(), &window().tableview());
}

/// Its file is gone since the search, so that the copy that stays is none.
TEST_F(WindowActionsTest, TheWarningOfTheConfirmationKnowsWhatWasFoundOfTheFiles) {
    const TrackRecord* marked = nullptr;
    search();
    press("autoMarkButton");
    press("markMarkButton");
    for (const TrackRecord* const row : rows())
        if (row->checkbox && !row->isdead) marked = row;
    ASSERT_NE(marked, nullptr);
    for (const TrackRecord* const row : rows())
        if (row->gid == marked->gid && !row->checkbox) std::filesystem::remove(row->location.string());
    press("deleteButton");
    press("delConfFileCK");
    ASSERT_TRUE(runEventLoopUntil([this] { return button("delConfOkButton").isEnabled(); }));
    press("delConfLostSongsButton");
    const std::int32_t song = marked->gid;
    ASSERT_TRUE(runEventLoopUntil([&] { return window().tableModel().rows().front()->gid == song; }));
    EXPECT_EQ(window().tableModel().rows().back()->gid, song);
}

TEST_F(WindowActionsTest, AfterADeletionTheFocusIsInTheTable) {
    search();
    click(0, Column::checkbox);
    button("deleteButton").setFocus();
    press("deleteButton");
    press("delConfOkButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isDeleting() && !controller->isWorking(); }));
    EXPECT_EQ(window().focusWidget(), &window().tableview());
}

TEST_F(WindowActionsTest, AfterACancelledDeletionTheFocusIsInTheTable) {
    search();
    click(0, Column::checkbox);
    button("deleteButton").setFocus();
    press("deleteButton");
    press("delConfOkButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return windows.progressWindow().isVisible(); }));
    press("progressCancelButton");
    EXPECT_EQ(window().focusWidget(), &window().tableview());
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isDeleting() && !controller->isWorking(); }));
    EXPECT_EQ(window().focusWidget(), &window().tableview());
}

TEST_F(WindowActionsTest, ADeletionTakesTracksOutOfLibraryAndTable) {
    search();
    const std::size_t before = rows().size();
    const std::size_t sizeBefore = folder.read("library.xml").size();
    press("autoMarkButton");
    press("markMarkButton");
    press("deleteButton");
    press("delConfOkButton");
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isDeleting() && !controller->isWorking(); }));
    EXPECT_LT(rows().size(), before);
    EXPECT_EQ(window().tableModel().rows(), rows());
    EXPECT_FALSE(windows.progressWindow().isVisible());
    ASSERT_TRUE(program->scripting().flush());
    EXPECT_LT(folder.read("library.xml").size(), sizeBefore);
    std::map<int, int> members;
    for (const TrackRecord* record : rows())
        ++members[record->gid];
    EXPECT_TRUE(
        std::all_of(members.begin(), members.end(), [](const auto& each) { return each.second > 1; }));
}

TEST_F(WindowActionsTest, AnotherLibraryEmptiesTheResults) {
    search();
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    EXPECT_TRUE(rows().empty());
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    EXPECT_EQ(alert(), nullptr);
}

TEST_F(WindowActionsTest, AnotherLibraryClosesTheParametersDialogOfTheOld) {
    press("searchButton");
    openLibrary(testData("library/five-tracks.xml"));
    EXPECT_FALSE(windows.paramWindow().isVisible());
    press("searchButton");
    EXPECT_EQ(windows.paramWindow().parameters().playlist, "Library");
}

TEST_F(WindowActionsTest, ALibraryThatCannotBeReadSaysSo) {
    openLibrary(folder.write("broken.xml", "no library"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->text(), QStringLiteral("Can't open the library."));
    EXPECT_FALSE(alert()->informativeText().isEmpty());
}

TEST_F(WindowActionsTest, ALibraryThatHasToStayKeepsItsResults) {
    search();
    ASSERT_TRUE(program->scripting().run("tell application \"iTunes\" to delete track 1 of playlist 1"));
    std::filesystem::remove(library);
    const std::vector<TrackRecord*> before = rows();
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->text(), QStringLiteral("Can't open the library."));
    EXPECT_EQ(program->scripting().libraryPath(), library);
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(page(), QStringLiteral("tableviewContainer"));
}

TEST_F(WindowActionsTest, ALibraryIsNotOpenedWhileAWorkerRuns) {
    startSearch();
    window().findChild<QAction*>(QStringLiteral("openLibraryMenuitem"))->trigger();
    EXPECT_EQ(window().findChild<QFileDialog*>(), nullptr);
    Q_EMIT window().openLibrary(testData("library/five-tracks.xml"));
    EXPECT_EQ(program->scripting().libraryPath(), library);
    ASSERT_TRUE(runEventLoopUntil([this] { return !controller->isWorking(); }));
}

TEST_F(WindowActionsTest, AnUnreachableLibraryIsToldInASheet) {
    openLibrary(folder.path() + "/nowhere.xml");
    ASSERT_NE(alert(), nullptr);
    alert()->done(0);
    handleWaitingEvents();
    startSearch();
    ASSERT_NE(alert(), nullptr);
    EXPECT_TRUE(alert()->text().startsWith(QStringLiteral("Can't access iTunes.")));
    EXPECT_EQ(page(), QStringLiteral("emptyPage"));
    EXPECT_TRUE(button("searchButton").isEnabled());
}

TEST_F(WindowActionsTest, ClosingTheMainWindowQuitsByItsOwnWord) {
    constexpr int stillRunning = 3;
    QTimer::singleShot(0, &window(), [this] { window().close(); });
    QTimer::singleShot(5000, &window(), [] { QApplication::exit(stillRunning); });
    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(WindowActionsTest, TheLastWindowClosedDoesNotQuitByItself) {
    constexpr int stillRunning = 3;
    QObject::disconnect(&window(), &MainWindow::closed, nullptr, nullptr);
    QTimer::singleShot(0, &window(), [this] { window().close(); });
    QTimer::singleShot(200, &window(), [] { QApplication::exit(stillRunning); });
    EXPECT_EQ(QApplication::exec(), stillRunning);
}

TEST_F(WindowActionsTest, QuittingDuringASearchEndsAtOnce) {
    startSearch();
    QTimer::singleShot(0, &window(), [this] { Q_EMIT window().quit(); });
    EXPECT_EQ(QApplication::exec(), 0);
    actions.reset();
    controller.reset();
}

TEST_F(WindowActionsTest, TheAboutBoxShowsNameAndVersion) {
    Q_EMIT window().aboutButtonClick();
    EXPECT_TRUE(windows.aboutWindow().isVisible());
    const auto labels = windows.aboutWindow().findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* each) {
        return each->text() == QStringLiteral("Songsweep 1.0");
    }));
}

TEST_F(WindowActionsTest, DeleteMarkedFromTheMenuNeedsAMark) {
    search();
    Q_EMIT window().deleteMarkedMenuClick();
    EXPECT_FALSE(windows.deleteConfirmation().isVisible());
    select(0, 0);
    QTest::keyClick(&window().tableview(), Qt::Key_Space);
    Q_EMIT window().deleteMarkedMenuClick();
    EXPECT_TRUE(windows.deleteConfirmation().isVisible()) << "the command refreshes the status first";
}

} // namespace songsweep::test
