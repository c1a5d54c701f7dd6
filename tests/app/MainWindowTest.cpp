// SPDX-License-Identifier: MIT
#include "app/MainWindow.h"

#include "support/RecordingLog.h"
#include "support/SampleRows.h"
#include "support/ThemedTest.h"
#include "support/Widgets.h"
#include "ui/SWTableView.h"
#include "ui/SummaryLabel.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace songsweep::test {

namespace {

class MainWindowTest : public ::testing::Test {
  protected:
    MainWindowTest() {
        window.resize(1100, 680);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    template <typename Widget>
    Widget& control(const char* name) {
        auto* found = window.findChild<Widget*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(name);
        return *found;
    }
    QAction& item(const char* name) { return control<QAction>(name); }
    QString page() { return control<QStackedWidget>("contentStack").currentWidget()->objectName(); }
    QString focus() { return window.focusWidget() ? window.focusWidget()->objectName() : QString(); }

    void showSearching() {
        window.setTableVisible(false);
        window.setPerformLabelVisible(false);
        window.setStatusText("");
        window.beginProgress();
    }
    void showResults(const DisplayedList& shown) {
        window.endProgress();
        window.setTableVisible(true);
        window.reloadTable(shown);
        window.setStatusVisible(!shown.rows.empty());
        window.setMarkEnabled(!shown.rows.empty());
        window.setStatusText("12 songs");
        window.setPerformLabelVisible(false);
        window.setSearchedText("Music: same name");
    }

    RecordingLog log;
    MainWindow window{log};
    DisplayedList list = sampleRows();
};

} // namespace

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

TEST_F(MainWindowTest, TheProgressStaysInPlaceWhenThePhaseChanges) {
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

TEST_F(MainWindowTest, TheProgressValueEndsWhereItsBarEnds) {
    for (const QSize size : {QSize(760, 420), QSize(1100, 680), QSize(1280, 760)}) {
        window.resize(size);
        showSearching();
        window.setProgressValue(58);
        QApplication::processEvents();
        const QRect bar = control<QProgressBar>("formprogress").geometry();
        EXPECT_EQ(control<QLabel>("progressValueLabel").geometry().right(), bar.right());
        EXPECT_EQ(control<QLabel>("progressInfoLabel").geometry().left(), bar.left());
        EXPECT_EQ(control<QToolButton>("formprogressCancelButton").geometry().left(), bar.right() + 1 + 4);
    }
}

TEST_F(MainWindowTest, TheBarShowsItsOwnValue) {
    window.setProgressValue(58.3);
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 58);
    EXPECT_EQ(control<QLabel>("progressValueLabel").text(), QStringLiteral("58 %"));
    window.setProgressValue(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 0);
    window.setProgressValue(130);
    EXPECT_EQ(control<QProgressBar>("formprogress").value(), 100);
}

TEST_F(MainWindowTest, EscapeCancelsTheSearch) {
    QSignalSpy cancels(&window, &MainWindow::cancelformButtonClick);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(cancels.size(), 0) << "nothing is being searched";
    showSearching();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(cancels.size(), 1);
}

TEST_F(MainWindowTest, MenuItemsFollowTheirButtons) {
    window.beginProgress(); // no second search begins
    EXPECT_FALSE(window.validateMenuItem(item("searchMenuitem")));
    EXPECT_FALSE(item("searchMenuitem").isEnabled());
    EXPECT_FALSE(control<QPushButton>("emptySearchButton").isEnabled());
    window.endProgress();
    EXPECT_TRUE(item("searchMenuitem").isEnabled());
    EXPECT_FALSE(item("autoMarkMenuitem").isEnabled());
    window.setMarkEnabled(true);
    EXPECT_TRUE(window.validateMenuItem(item("autoMarkMenuitem")));
    EXPECT_TRUE(item("autoMarkMenuitem").isEnabled());
}

TEST_F(MainWindowTest, EveryOtherMenuItemStaysEnabled) {
    showSearching();
    window.setMarkEnabled(false);
    window.setDeleteEnabled(false);
    for (const char* name :
         {"deleteMarkedMenuitem", "openLibraryMenuitem", "markSelectedMenuitem", "markAllMenuitem",
          "unmarkAllMenuitem", "playMenuitem", "showinFinderMenuitem", "aboutMenuitem"}) {
        EXPECT_TRUE(window.validateMenuItem(item(name))) << name;
        EXPECT_TRUE(item(name).isEnabled()) << name;
    }
}

TEST_F(MainWindowTest, EveryMenuItemAsksForItsActionAndForNoOther) {
    struct Wish {
        const char* item;
        void (MainWindow::*signal)();
    };
    const std::vector<Wish> wishes = {
        {"searchMenuitem", &MainWindow::startButtonClick},
        {"deleteMarkedMenuitem", &MainWindow::deleteMarkedMenuClick},
        {"autoMarkMenuitem", &MainWindow::markButtonClick},
        {"playMenuitem", &MainWindow::playMenuClick},
        {"showinFinderMenuitem", &MainWindow::showinFinderMenuClick},
        {"mainWindowMenuitem", &MainWindow::mainWindowMenuClick},
        {"helpMenuitem", &MainWindow::helpButtonClick},
        {"websiteMenuitem", &MainWindow::websiteButtonClick},
        {"contactMenuitem", &MainWindow::contactButtonClick},
        {"aboutMenuitem", &MainWindow::aboutButtonClick},
        {"quitMenuitem", &MainWindow::quit},
        {"closeMenuitem", &MainWindow::closed},
    };
    window.setMarkEnabled(true);
    QStringList asked;
    for (const Wish& wish : wishes)
        QObject::connect(&window, wish.signal, &window,
                         [&asked, wish] { asked.append(QString::fromLatin1(wish.item)); });
    for (const Wish& wish : wishes) {
        asked.clear();
        item(wish.item).trigger();
        EXPECT_EQ(asked, QStringList(QString::fromLatin1(wish.item)));
    }
}

TEST_F(MainWindowTest, EveryItemWithAKeyIsPressedByIt) {
    const std::vector<std::pair<const char*, QKeyCombination>> keys = {
        {"openLibraryMenuitem", Qt::CTRL | Qt::Key_O},
        {"searchMenuitem", Qt::CTRL | Qt::Key_F},
        {"deleteMarkedMenuitem", Qt::CTRL | Qt::Key_Delete},
        {"quitMenuitem", Qt::CTRL | Qt::Key_Q},
        {"autoMarkMenuitem", Qt::CTRL | Qt::Key_R},
        {"markSelectedMenuitem", Qt::CTRL | Qt::Key_K},
        {"unmarkSelectedMenuitem", Qt::CTRL | Qt::SHIFT | Qt::Key_K},
        {"markAllMenuitem", Qt::CTRL | Qt::SHIFT | Qt::Key_A},
        {"unmarkAllMenuitem", Qt::CTRL | Qt::Key_U},
        {"playMenuitem", Qt::CTRL | Qt::Key_P},
        {"showinFinderMenuitem", Qt::CTRL | Qt::SHIFT | Qt::Key_R},
        {"mainWindowMenuitem", Qt::CTRL | Qt::Key_0},
        {"helpMenuitem", Qt::NoModifier | Qt::Key_F1},
        {"closeMenuitem", Qt::CTRL | Qt::Key_W},
    };
    window.setOpenLibraryGuard([] { return false; });
    showResults(list);
    for (const auto& [name, key] : keys) {
        QSignalSpy presses(&item(name), &QAction::triggered);
        QTest::keyClick(window.focusWidget(), key.key(), key.keyboardModifiers());
        EXPECT_EQ(presses.size(), 1) << name;
    }
    for (const QAction* action : window.findChildren<QAction*>())
        EXPECT_TRUE(action->shortcut().isEmpty() || std::any_of(keys.begin(), keys.end(),
                                                                [&](const auto& each) {
                                                                    return action->objectName() ==
                                                                           QString::fromLatin1(each.first);
                                                                }))
            << action->text().toStdString();
}

TEST_F(MainWindowTest, MarkItemsCarryTheirTags) {
    QSignalSpy marks(&window, &MainWindow::markMenuClick);
    for (const char* name :
         {"markSelectedMenuitem", "unmarkSelectedMenuitem", "markAllMenuitem", "unmarkAllMenuitem"})
        item(name).trigger();
    ASSERT_EQ(marks.size(), 4);
    for (int tag = 0; tag < 4; ++tag)
        EXPECT_EQ(marks[tag][0].toInt(), tag);
}

TEST_F(MainWindowTest, ShortcutsWorkFromTheTable) {
    showResults(list);
    QSignalSpy searches(&window, &MainWindow::startButtonClick);
    QSignalSpy rules(&window, &MainWindow::markButtonClick);
    QSignalSpy deletes(&window, &MainWindow::deleteMarkedMenuClick);
    QSignalSpy marks(&window, &MainWindow::markMenuClick);
    QTest::keyClick(window.focusWidget(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(window.focusWidget(), Qt::Key_R, Qt::ControlModifier);
    QTest::keyClick(window.focusWidget(), Qt::Key_Delete, Qt::ControlModifier);
    QTest::keyClick(window.focusWidget(), Qt::Key_K, Qt::ControlModifier);
    QTest::keyClick(window.focusWidget(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(searches.size(), 1);
    EXPECT_EQ(rules.size(), 1);
    EXPECT_EQ(deletes.size(), 1);
    ASSERT_EQ(marks.size(), 2);
    EXPECT_EQ(marks[1][0].toInt(), 2);
}

TEST_F(MainWindowTest, WithResultsTheFirstRowIsCurrentAndNoneSelected) {
    showSearching();
    showResults(list);
    EXPECT_EQ(window.tableview().currentIndex().row(), 0);
    EXPECT_TRUE(window.selectedRows().empty());
    EXPECT_EQ(window.selectedRow(), -1);
}

TEST_F(MainWindowTest, TheStripTellsWhatIsShownAndWhatWasSearched) {
    showResults(list);
    EXPECT_EQ(control<QLabel>("statusBottomLabel").text(), QStringLiteral("12 songs"));
    EXPECT_EQ(control<QLabel>("searchedLabel").text(), QStringLiteral("Music: same name"));
}

TEST_F(MainWindowTest, ALongPlaylistIsCutWithDotsBeforeWhatWasCompared) {
    showResults(list);
    const auto& searched = control<SummaryLabel>("searchedLabel");
    QApplication::processEvents();
    EXPECT_EQ(searched.shownText(), searched.text());
    const QString whole =
        QStringLiteral("Party: ") + QString(300, QLatin1Char('W')) + QStringLiteral(": same name, artist");
    window.setSearchedText(whole.toStdString());
    QApplication::processEvents();
    const QString shown = searched.shownText();
    EXPECT_TRUE(shown.startsWith(QStringLiteral("Party: WWW"))) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(QStringLiteral("\u2026: same name, artist"))) << shown.toStdString();
    EXPECT_LE(searched.fontMetrics().horizontalAdvance(shown), searched.width());
    EXPECT_EQ(accessibleName(control<QWidget>("searchedLabel")), whole);
    const QLabel& status = control<QLabel>("statusBottomLabel");
    EXPECT_GE(status.width(), status.sizeHint().width());
    EXPECT_LE(status.geometry().right(), searched.geometry().left());
}

TEST_F(MainWindowTest, WithoutResultsTheStripIsEmpty) {
    showResults({});
    EXPECT_FALSE(control<QLabel>("statusBottomLabel").isVisible());
    EXPECT_TRUE(control<QLabel>("searchedLabel").text().isEmpty());
    EXPECT_TRUE(control<QWidget>("strip").isVisible());
}

TEST_F(MainWindowTest, TheHorizontalScrollerComesAndGoes) {
    showResults(list);
    window.setHorizontalScroller(true);
    EXPECT_EQ(window.tableview().horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    window.setHorizontalScroller(false);
    EXPECT_EQ(window.tableview().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST_F(MainWindowTest, TheSortIndicatorIsThatOfTheHeader) {
    window.setSortIndicator(Column::time, false);
    EXPECT_EQ(window.tableview().header().sortedColumn(), Column::time);
    EXPECT_FALSE(window.tableview().header().isAscending());
    window.clearSortIndicator();
    EXPECT_FALSE(window.tableview().header().sortedColumn());
}

TEST_F(MainWindowTest, ACheckBoxSaysWhichRowItIsOf) {
    showResults(list);
    QSignalSpy edits(&window, &MainWindow::setObjectValue);
    window.tableModel().setData(window.tableModel().index(3, 0), Qt::Checked, Qt::CheckStateRole);
    ASSERT_EQ(edits.size(), 1);
    EXPECT_EQ(edits[0][0].toBool(), true);
    EXPECT_EQ(edits[0][1].value<Column>(), Column::checkbox);
    EXPECT_EQ(edits[0][2].toInt(), 3);
}

TEST_F(MainWindowTest, TheContextMenuHoldsTheTrackAndMarkItems) {
    showResults(list);
    window.tableview().setCurrentIndex(window.tableModel().index(2, 2));
    const QMenu* menu = window.tableview().menuForEvent(
        window.tableview().visualRect(window.tableModel().index(2, 2)).center());
    QStringList titles;
    for (const QAction* action : menu->actions())
        titles.append(action->isSeparator() ? QStringLiteral("-") : action->text().remove(QLatin1Char('&')));
    EXPECT_EQ(
        titles.join(QLatin1Char('|')),
        QStringLiteral("Play|Show in file manager|-|Mark selected|Unmark selected|-|Mark all|Unmark all"));
}

TEST_F(MainWindowTest, ALibraryFileCanBeDropped) {
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/iTunes Library.XML"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/music/iTunes Library.XML");
}

TEST_F(MainWindowTest, ADroppedNameNeedNotBeUtf8) {
    QSignalSpy opened(&window, &MainWindow::openLibrary);
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), "file:///music/caf%E9%20100%25.xml\r\n");
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    ASSERT_EQ(opened.size(), 1);
    EXPECT_EQ(opened[0][0].value<std::string>(), "/music/caf\xe9 100%.xml");
}

TEST_F(MainWindowTest, NoLibraryIsTakenOrChosenWhileTheGuardSaysNo) {
    bool mayOpen = false;
    window.setOpenLibraryGuard([&] { return mayOpen; });
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/Library.xml"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    EXPECT_FALSE(enter.isAccepted());
    item("openLibraryMenuitem").trigger();
    EXPECT_EQ(window.findChild<QFileDialog*>(), nullptr);
    EXPECT_TRUE(item("openLibraryMenuitem").isEnabled());
    mayOpen = true;
    item("openLibraryMenuitem").trigger();
    EXPECT_NE(window.findChild<QFileDialog*>(), nullptr);
}

TEST_F(MainWindowTest, OtherFilesAndSeveralAreNotTaken) {
    QMimeData song;
    song.setUrls({QUrl::fromLocalFile(QStringLiteral("/music/a.mp3"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &song, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    EXPECT_FALSE(enter.isAccepted());
    QMimeData two;
    two.setUrls(
        {QUrl::fromLocalFile(QStringLiteral("/a.xml")), QUrl::fromLocalFile(QStringLiteral("/b.xml"))});
    QDragEnterEvent both(QPoint(10, 10), Qt::CopyAction, &two, Qt::LeftButton, Qt::NoModifier);
    both.ignore();
    QApplication::sendEvent(&window, &both);
    EXPECT_FALSE(both.isAccepted());
}

TEST_F(MainWindowTest, ClosingSaysSo) {
    QSignalSpy closes(&window, &MainWindow::closed);
    item("closeMenuitem").trigger();
    EXPECT_EQ(closes.size(), 1);
    EXPECT_FALSE(window.isVisible());
    window.present();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(MainWindowTest, ControlsSpeakInVerbAndObject) {
    const std::vector<std::pair<const char*, const char*>> names = {
        {"searchButton", "Find duplicates"},          {"autoMarkButton", "Mark copies by a rule"},
        {"deleteButton", "Delete the marked tracks"}, {"formprogressCancelButton", "Cancel search"},
        {"formprogress", "Search progress"},          {"tableview", "Duplicate tracks"},
        {"emptySearchButton", "Find duplicates"},
    };
    for (const auto& [name, spoken] : names) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&control<QWidget>(name));
        ASSERT_NE(accessible, nullptr) << name;
        EXPECT_EQ(accessible->text(QAccessible::Name), QString::fromLatin1(spoken)) << name;
    }
}

TEST_F(MainWindowTest, ControlsHaveTheirRoles) {
    const std::vector<std::pair<const char*, QAccessible::Role>> roles = {
        {"searchButton", QAccessible::Button},
        {"autoMarkButton", QAccessible::Button},
        {"deleteButton", QAccessible::Button},
        {"formprogressCancelButton", QAccessible::Button},
        {"emptySearchButton", QAccessible::Button},
        {"formprogress", QAccessible::ProgressBar},
        {"tableview", QAccessible::Table},
        {"progressInfoLabel", QAccessible::StaticText},
        {"progressValueLabel", QAccessible::StaticText},
        {"statusBottomLabel", QAccessible::StaticText},
        {"searchedLabel", QAccessible::StaticText},
        {"mainMenu", QAccessible::MenuBar},
    };
    for (const auto& [name, role] : roles)
        EXPECT_EQ(QAccessible::queryAccessibleInterface(&control<QWidget>(name))->role(), role) << name;
}

TEST_F(MainWindowTest, ToolTipsNameTheKeys) {
    EXPECT_EQ(control<QWidget>("searchButton").toolTip(), QStringLiteral("Find duplicates (Ctrl+F)"));
    EXPECT_EQ(control<QWidget>("autoMarkButton").toolTip(), QStringLiteral("Mark copies by a rule (Ctrl+R)"));
    EXPECT_EQ(control<QWidget>("deleteButton").toolTip(),
              QStringLiteral("Delete the marked tracks (Ctrl+Del)"));
    EXPECT_EQ(control<QWidget>("formprogressCancelButton").toolTip(), QStringLiteral("Cancel search (Esc)"));
}

TEST_F(MainWindowTest, TabGoesThroughToolbarAndContentAndAround) {
    showResults(list);
    window.setDeleteEnabled(true);
    QStringList order = {focus()};
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        order.append(focus());
    }
    EXPECT_EQ(order.join(QLatin1Char(' ')),
              QStringLiteral("tableview searchButton autoMarkButton deleteButton tableview"));
}

TEST_F(MainWindowTest, ToolbarHeaderRowsAndStripHaveTheirHeights) {
    QFont font = window.font();
    font.setPixelSize(13);
    window.setFont(font);
    showResults(list);
    QApplication::processEvents();
    const int line = 1;
    EXPECT_EQ(control<QWidget>("toolbar").height() + line, 48);
    EXPECT_EQ(control<QWidget>("strip").height() + line, 24);
    EXPECT_EQ(window.tableview().header().height(), 26);
}

TEST_F(MainWindowTest, LengthsGrowWithTheFont) {
    QFont font = window.font();
    font.setPixelSize(26);
    window.setFont(font);
    window.resize(1600, 900);
    showSearching();
    QApplication::processEvents();
    EXPECT_EQ(control<QWidget>("toolbar").height() + 1, 96);
    EXPECT_EQ(control<QProgressBar>("formprogress").width(), 2 * 364);
    const int barEnd = control<QWidget>("formprogress").geometry().right();
    EXPECT_EQ(control<QWidget>("formprogressCancelButton").geometry().left() - barEnd - 1, 2 * 4);
}

TEST_F(MainWindowTest, TheBarIsInTheMiddleOfThePage) {
    showSearching();
    QApplication::processEvents();
    const QWidget& bar = control<QProgressBar>("formprogress");
    EXPECT_NEAR(bar.geometry().center().x(), bar.parentWidget()->rect().center().x(), 1);
}

class MainWindowAtScale : public ThemedTest, public ::testing::WithParamInterface<double> {};

TEST_P(MainWindowAtScale, ClipsNoTextOnAnyPage) {
    setFont(GetParam(), 100);
    RecordingLog log;
    MainWindow window(log);
    window.show();
    window.resize(window.minimumSize());
    const auto clipped = [&] {
        QApplication::processEvents();
        return clippedControls(window).join(QLatin1Char(' ')).toStdString();
    };
    EXPECT_EQ(clipped(), "") << "empty state";
    window.setPerformLabelVisible(false);
    window.beginProgress();
    window.setProgressText("Checking missing tracks...");
    window.setProgressValue(100);
    EXPECT_EQ(clipped(), "") << "searching";
    window.endProgress();
    window.setTableVisible(true);
    window.reloadTable(sampleRows());
    window.setStatusText("123456 of 1000000 marked");
    window.setStatusVisible(true);
    window.setSearchedText("Music: same name, artist, album, time");
    window.setDeleteEnabled(true);
    EXPECT_EQ(clipped(), "") << "results";
}

INSTANTIATE_TEST_SUITE_P(, MainWindowAtScale, ::testing::Values(1.0, 1.5, 2.0));

} // namespace songsweep::test
