// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <utility>
#include <vector>

namespace songsweep::test {
namespace {

using MainWindowMenuTest = MainWindowFixture;

TEST_F(MainWindowMenuTest, MenuItemsFollowTheirButtons) {
    window.beginProgress(); // no second search begins
    EXPECT_FALSE(window.validateMenuItem(item("searchMenuitem")));
    EXPECT_FALSE(item("searchMenuitem").isEnabled());
    EXPECT_FALSE(control<QPushButton>("emptyButton0").isEnabled());
    window.endProgress();
    EXPECT_TRUE(item("searchMenuitem").isEnabled());
    EXPECT_FALSE(item("autoMarkMenuitem").isEnabled());
    window.setMarkEnabled(true);
    EXPECT_TRUE(window.validateMenuItem(item("autoMarkMenuitem")));
    EXPECT_TRUE(item("autoMarkMenuitem").isEnabled());
}

TEST_F(MainWindowMenuTest, EveryOtherMenuItemStaysEnabled) {
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

TEST_F(MainWindowMenuTest, EveryMenuItemAsksForItsActionAndForNoOther) {
    struct Wish {
        const char* item;
        void (MainWindow::*signal)();
    };
    const std::vector<Wish> wishes = {
        {"searchMenuitem", &MainWindow::startButtonClick},
        {"deleteMarkedMenuitem", &MainWindow::deleteMarkedMenuClick},
        {"restoreMenuitem", &MainWindow::restoreMenuClick},
        {"autoMarkMenuitem", &MainWindow::markButtonClick},
        {"playMenuitem", &MainWindow::playMenuClick},
        {"showinFinderMenuitem", &MainWindow::showinFinderMenuClick},
        {"mainWindowMenuitem", &MainWindow::mainWindowMenuClick},
        {"guideMenuitem", &MainWindow::guideMenuClick},
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

TEST_F(MainWindowMenuTest, EveryItemWithAKeyIsPressedByIt) {
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
        {"guideMenuitem", Qt::NoModifier | Qt::Key_F1},
        {"undoMenuitem", Qt::CTRL | Qt::Key_Z},
        {"redoMenuitem", Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
        {"copyRowsMenuitem", Qt::CTRL | Qt::Key_C},
        {"detailsMenuitem", Qt::CTRL | Qt::Key_I},
        {"filterMenuitem", Qt::CTRL | Qt::Key_L},
        {"closeMenuitem", Qt::CTRL | Qt::Key_W},
    };
    window.setUndoNames("Mark all", "Unmark all");
    window.setOpenLibraryGuard([] { return false; });
    showResults(list);
    for (const auto& [name, key] : keys) {
        QSignalSpy presses(&item(name), &QAction::triggered);
        QTest::keyClick(window.focusWidget(), key.key(), key.keyboardModifiers());
        EXPECT_EQ(presses.size(), 1) << name;
    }
    for (const QAction* action : window.findChildren<QAction*>()) {
        if (action == &item("exportMenuitem")) continue; // opens a window
        EXPECT_TRUE(action->shortcut().isEmpty() || std::any_of(keys.begin(), keys.end(),
                                                                [&](const auto& each) {
                                                                    return action->objectName() ==
                                                                           QString::fromLatin1(each.first);
                                                                }))
            << action->text().toStdString();
    }
    EXPECT_EQ(item("exportMenuitem").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_E));
}

TEST_F(MainWindowMenuTest, MarkItemsCarryTheirTags) {
    QSignalSpy marks(&window, &MainWindow::markMenuClick);
    for (const char* name :
         {"markSelectedMenuitem", "unmarkSelectedMenuitem", "markAllMenuitem", "unmarkAllMenuitem"})
        item(name).trigger();
    ASSERT_EQ(marks.size(), 4);
    for (int tag = 0; tag < 4; ++tag)
        EXPECT_EQ(marks[tag][0].toInt(), tag);
}

TEST_F(MainWindowMenuTest, ShortcutsWorkFromTheTable) {
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

TEST_F(MainWindowMenuTest, UndoAndRedoAreNamedAfterWhatTheyDo) {
    EXPECT_FALSE(item("undoMenuitem").isEnabled());
    window.setUndoNames("Mark all", "");
    EXPECT_EQ(item("undoMenuitem").text(), QStringLiteral("&Undo “Mark all”"));
    QSignalSpy undo(&window, &MainWindow::undoMarksClick);
    item("undoMenuitem").trigger();
    item("redoMenuitem").trigger();
    EXPECT_EQ(undo.size(), 1);
    window.setUndoNames("", "Mark all");
    QSignalSpy redo(&window, &MainWindow::redoMarksClick);
    item("redoMenuitem").trigger();
    EXPECT_EQ(redo.size(), 1);
}

TEST_F(MainWindowMenuTest, EveryOrderCanBeHadWithoutAPointer) {
    QSignalSpy sorts(&window, &MainWindow::didClickTableColumn);
    const QList<QAction*> items = control<QMenu>("sortMenu").actions();
    EXPECT_EQ(items.size(), static_cast<int>(allColumns.size()) - 1) << "missing files have no order";
    items.last()->trigger();
    ASSERT_EQ(sorts.size(), 1);
    EXPECT_EQ(sorts[0][0].value<Column>(), Column::location);
}

TEST_F(MainWindowMenuTest, TheKeysOfMenusAndTableAreListed) {
    QSignalSpy lists(&window, &MainWindow::keyboardMenuClick);
    item("keyboardMenuitem").trigger();
    ASSERT_EQ(lists.size(), 1);
    const auto lines = lists[0][0].value<std::vector<std::string>>();
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(),
                            [](const std::string& line) { return line == "Ctrl+F: Search"; }));
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("Ctrl+Up, Ctrl+Down: ");
    }));
}

TEST_F(MainWindowMenuTest, TheContextMenuHoldsTheTrackAndMarkItems) {
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

} // namespace
} // namespace songsweep::test
