// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "support/EventLoop.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace songsweep::test {
namespace {

class MainWindowFilterTest : public MainWindowFixture {
  protected:
    MainWindowFilterTest() {
        list.rows[4]->album = "The needle";
        showResults(list);
    }
    QLineEdit& field() { return control<QLineEdit>("filterField"); }
    QToolButton* clearSign() {
        for (QToolButton* button : field().findChildren<QToolButton*>())
            if (button->defaultAction()->objectName() == QLatin1String("_q_qlineeditclearaction"))
                return button;
        return nullptr;
    }
    bool waitForClearSign(double opacity) {
        return runEventLoopUntil([&] { return clearSign()->property("opacity").toDouble() == opacity; });
    }
    const std::vector<TrackRecord*>& shown() { return window.tableModel().rows(); }
    bool waitFor(std::size_t rows) {
        return runEventLoopUntil([this, rows] { return shown().size() == rows; });
    }
};

TEST_F(MainWindowFilterTest, ShowsWholeGroupsAndTellsTheRowsOfTheResults) {
    item("filterMenuitem").trigger();
    EXPECT_EQ(focus(), QStringLiteral("filterField"));
    field().setText(QStringLiteral("NEEDLE"));
    ASSERT_TRUE(waitFor(3)) << "the group of rows 4 to 6";
    EXPECT_TRUE(
        control<QLabel>("gainLabel").text().startsWith(QStringLiteral("· 3 of 12 shown · 12 copies")));
    window.tableview().setCurrentIndex(window.tableModel().index(2, 2));
    EXPECT_EQ(window.selectedRow(), 6);
    EXPECT_EQ(window.selectedRows(), std::vector<int>{6});
    QSignalSpy marks(&window, &MainWindow::setObjectValue);
    window.tableModel().setData(window.tableModel().index(1, 0), Qt::Checked, Qt::CheckStateRole);
    ASSERT_EQ(marks.size(), 1);
    EXPECT_EQ(marks[0][2].toInt(), 5);
}

TEST_F(MainWindowFilterTest, StaysWhenMarksChangeAndFollowsAnotherOrder) {
    window.showSongsLosingEveryCopy();
    ASSERT_TRUE(waitFor(0)) << "none does";
    for (const int row : {0, 1})
        list.rows[row]->checkbox = true;
    window.reloadTable(list);
    EXPECT_TRUE(shown().empty()) << "no group comes or goes with a mark";
    window.showSongsLosingEveryCopy();
    ASSERT_TRUE(waitFor(2));
    std::swap(list.rows[0], list.rows[1]);
    window.reloadTable(list);
    EXPECT_EQ(shown(), (std::vector<TrackRecord*>{list.rows[0], list.rows[1]}));
    EXPECT_EQ(window.tableview().selectedRows(), std::vector<int>());
}

TEST_F(MainWindowFilterTest, EscapeShowsAllRowsAgain) {
    field().setText(QStringLiteral("needle"));
    ASSERT_TRUE(waitFor(3));
    ASSERT_TRUE(waitForClearSign(1));
    field().setFocus();
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_EQ(shown().size(), 12U);
    EXPECT_EQ(field().text(), QString());
    EXPECT_EQ(focus(), QStringLiteral("tableview"));
    EXPECT_TRUE(waitForClearSign(0));
}

TEST_F(MainWindowFilterTest, AnotherSearchIsNotFiltered) {
    field().setText(QStringLiteral("needle"));
    ASSERT_TRUE(waitFor(3));
    const DisplayedList other = manyRows(2, 2);
    window.reloadTable(other);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_EQ(field().text(), QString());
    window.reloadTable({});
    EXPECT_FALSE(field().isEnabled());
}

TEST_F(MainWindowFilterTest, ARowThatIsHiddenIsNotLostToTheResults) {
    field().setText(QStringLiteral("no such text"));
    ASSERT_TRUE(waitFor(0));
    EXPECT_EQ(page(), QStringLiteral("tableviewContainer"));
    EXPECT_EQ(control<QLabel>("searchedLabel").text(), QStringLiteral("Music: same name"));
    EXPECT_EQ(window.selectedRow(), -1);
}

} // namespace
} // namespace songsweep::test
