// SPDX-License-Identifier: MIT
#include "ui/SWTableView.h"

#include "ui/TableFixture.h"
#include "ui/TrackHeaderView.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>
#include <numeric>

namespace songsweep::test {

namespace {

using SWTableViewTest = TableFixture;
using Rows = std::vector<int>;

class MenuFixture : public TableFixture {
  protected:
    MenuFixture() {
        menu.addAction(QStringLiteral("Play"));
        menu.addSeparator();
        menu.addAction(QStringLiteral("Mark all"));
        view.setContextMenu(&menu);
    }

    QMenu menu;
};

} // namespace

TEST_F(SWTableViewTest, TheSpaceBarIsAnEventOfItsOwn) {
    QSignalSpy spaces(&view, &SWTableView::tableviewSpacebar);
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(spaces.size(), 2);
    EXPECT_TRUE(view.selectedRows().empty()) << "the base class would have selected a row";
}

TEST_F(SWTableViewTest, ADeadKeyGoesToTheBaseClass) {
    QSignalSpy spaces(&view, &SWTableView::tableviewSpacebar);
    QKeyEvent dead(QEvent::KeyPress, Qt::Key_Dead_Acute, Qt::NoModifier, QString());
    QApplication::sendEvent(&view, &dead);
    EXPECT_EQ(spaces.size(), 0);
}

TEST_F(SWTableViewTest, ArrowsMoveAndExtendTheSelection) {
    view.selectionModel()->setCurrentIndex(cell(0, Column::name), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(view.selectedRows(), Rows{1});
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedRows(), (Rows{1, 2, 3}));
    EXPECT_EQ(view.selectedRow(), 3);
}

TEST_F(SWTableViewTest, EverythingIsSelectedAsOneRange) {
    QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
    Rows all(12);
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(view.selectedRows(), all);
    EXPECT_EQ(view.selectionModel()->selection().size(), 1);
}

TEST_F(SWTableViewTest, SelectedRowsComeInAscendingOrder) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(7, Column::name));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(2, Column::name));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(4, Column::name));
    EXPECT_EQ(view.selectedRows(), (Rows{2, 4, 7}));
    EXPECT_EQ(view.selectedRow(), 4);
}

TEST_F(SWTableViewTest, NoSelectionIsNoSelectedRow) {
    view.selectionModel()->setCurrentIndex(cell(3, Column::name), QItemSelectionModel::NoUpdate);
    EXPECT_EQ(view.selectedRow(), -1);
    EXPECT_TRUE(view.selectedRows().empty());
}

TEST_F(SWTableViewTest, TypedLettersJumpByName) {
    QTest::keyClicks(&view, QStringLiteral("kit"));
    EXPECT_EQ(view.selectedRows(), Rows{7});
}

TEST_F(SWTableViewTest, AClickOnACheckBoxLeavesTheSelectionAlone) {
    QSignalSpy edits(&model, &QAbstractItemModel::dataChanged);
    std::vector<std::pair<int, bool>> marks;
    model.setObjectValueHandler([&](Column, int row, bool value) { marks.emplace_back(row, value); });
    select(4, 6);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(1, Column::checkbox));
    EXPECT_EQ(view.selectedRows(), (Rows{4, 5, 6}));
    ASSERT_EQ(marks.size(), 1u);
    EXPECT_EQ(marks[0], std::make_pair(1, false));
}

TEST_F(SWTableViewTest, TwoQuickClicksToggleACheckBoxTwiceAndPlayNothing) {
    QSignalSpy plays(&view, &SWTableView::tableviewDoubleClick);
    model.setObjectValueHandler([&](Column, int row, bool value) {
        list.rows[static_cast<std::size_t>(row)]->checkbox = value;
        reload();
    });
    const QPoint box = middleOf(0, Column::checkbox);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, box);
    EXPECT_TRUE(list.rows[0]->checkbox);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, box);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, box);
    EXPECT_FALSE(list.rows[0]->checkbox);
    EXPECT_EQ(plays.size(), 0);
}

TEST_F(SWTableViewTest, ADoubleClickAsksToPlay) {
    QSignalSpy plays(&view, &SWTableView::tableviewDoubleClick);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2, Column::name));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2, Column::name));
    EXPECT_EQ(plays.size(), 1);
    EXPECT_EQ(view.selectedRow(), 2);
}

TEST_F(SWTableViewTest, AClickOnATitleNamesItsColumn) {
    QSignalSpy clicks(&view, &SWTableView::didClickTableColumn);
    const int section = static_cast<int>(Column::bitrate);
    const QPoint middle(view.header().sectionViewportPosition(section) + 20, 10);
    QTest::mouseClick(view.header().viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][0].value<Column>(), Column::bitrate);
}

TEST_F(MenuFixture, ARightClickOnAnUnselectedRowSelectsThatRowAlone) {
    select(4, 6);
    EXPECT_EQ(view.menuForEvent(middleOf(2, Column::name)), &menu);
    EXPECT_EQ(view.selectedRows(), Rows{2});
}

TEST_F(MenuFixture, ARightClickOnOneOfSeveralSelectedRowsKeepsThemAll) {
    select(4, 6);
    EXPECT_EQ(view.menuForEvent(middleOf(5, Column::name)), &menu);
    EXPECT_EQ(view.selectedRows(), (Rows{4, 5, 6}));
}

TEST_F(MenuFixture, ARightClickBelowTheLastRowLeavesTheSelection) {
    select(4, 6);
    EXPECT_EQ(view.menuForEvent(QPoint(50, view.viewport()->height() - 5)), &menu);
    EXPECT_EQ(view.selectedRows(), (Rows{4, 5, 6}));
}

TEST_F(MenuFixture, WithNothingSelectedEveryItemOfTheMenuIsGrey) {
    QMenu* copy = view.menuForEvent(QPoint(50, view.viewport()->height() - 5));
    ASSERT_NE(copy, nullptr);
    EXPECT_NE(copy, &menu);
    ASSERT_EQ(copy->actions().size(), menu.actions().size());
    for (const QAction* action : copy->actions())
        EXPECT_TRUE(action->isSeparator() || !action->isEnabled());
    EXPECT_TRUE(menu.actions().front()->isEnabled());
    EXPECT_TRUE(view.selectedRows().empty());
    delete copy;
}

TEST_F(MenuFixture, AskingForTheMenuMakesTheTableTheFirstResponder) {
    view.clearFocus();
    view.menuForEvent(middleOf(2, Column::name));
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(SWTableViewTest, TheSelectionFollowsItsTracksThroughASort) {
    select(4, 4);
    view.selectionModel()->setCurrentIndex(cell(4, Column::name), QItemSelectionModel::NoUpdate);
    const TrackRecord* track = list.rows[4];
    sortInsideGroups(list.rows, Column::bitrate, true);
    reload();
    ASSERT_EQ(view.selectedRows().size(), 1u);
    EXPECT_EQ(model.rows()[static_cast<std::size_t>(view.selectedRow())], track);
    EXPECT_EQ(view.currentIndex().row(), view.selectedRow());
    EXPECT_EQ(view.selectedRow(), 6);
}

TEST_F(SWTableViewTest, ASelectionOfSeveralRowsFollowsItsTracks) {
    select(3, 5);
    std::vector<const TrackRecord*> tracks = {list.rows[3], list.rows[4], list.rows[5]};
    std::reverse(list.rows.begin() + 4, list.rows.begin() + 7);
    reload();
    EXPECT_EQ(view.selectedRows(), (Rows{3, 5, 6}));
    for (const int row : view.selectedRows())
        EXPECT_NE(std::find(tracks.begin(), tracks.end(), model.rows()[static_cast<std::size_t>(row)]),
                  tracks.end());
}

TEST_F(SWTableViewTest, AfterADeletionTheNearestRowLeftIsCurrent) {
    view.selectionModel()->setCurrentIndex(cell(4, Column::name), QItemSelectionModel::NoUpdate);
    const TrackRecord* next = list.rows[7];
    list.rows.erase(list.rows.begin() + 4, list.rows.begin() + 7);
    reload();
    EXPECT_EQ(view.currentIndex().row(), 4);
    EXPECT_EQ(model.rows()[4], next);
    list.rows.resize(3);
    reload();
    EXPECT_EQ(view.currentIndex().row(), 2);
    list.rows.clear();
    reload();
    EXPECT_FALSE(view.currentIndex().isValid());
}

TEST_F(SWTableViewTest, TracksThatStaySelectedAreFoundAgainAfterADeletion) {
    select(5, 8);
    list.rows.erase(list.rows.begin() + 4, list.rows.begin() + 7);
    reload();
    EXPECT_EQ(view.selectedRows(), (Rows{4, 5}));
}

TEST_F(SWTableViewTest, TheTableStaysWhereItWasScrolledTo) {
    list = manyRows(500, 2);
    reload();
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue(4807);
    sortInsideGroups(list.rows, Column::bitrate, true);
    reload();
    EXPECT_EQ(bar->value(), 4807);
    const TrackRecord* top = model.rows()[static_cast<std::size_t>(view.rowAt(0))];
    list.rows.erase(list.rows.begin() + 10, list.rows.begin() + 20);
    reload();
    EXPECT_EQ(model.rows()[static_cast<std::size_t>(view.rowAt(0))], top);
    EXPECT_EQ(bar->value(), 4807 - 10 * view.rowHeight(0));
}

TEST_F(SWTableViewTest, TheColumnsStayWhereTheyWereScrolledTo) {
    list = manyRows(500, 2);
    reload();
    view.resize(500, 400);
    view.selectionModel()->setCurrentIndex(cell(4, Column::name), QItemSelectionModel::NoUpdate);
    QScrollBar* bar = view.horizontalScrollBar();
    bar->setValue(bar->maximum());
    const int before = bar->value();
    ASSERT_GT(before, 0);
    list.rows.erase(list.rows.begin() + 10, list.rows.begin() + 20);
    reload();
    EXPECT_EQ(bar->value(), before);
    sortInsideGroups(list.rows, Column::bitrate, true);
    reload();
    EXPECT_EQ(bar->value(), before);
}

TEST_F(SWTableViewTest, OnlyAnElidedTextHasAToolTip) {
    const auto toolTipAt = [this](int row, Column column) {
        QToolTip::hideText();
        const QPoint place = middleOf(row, column);
        QHelpEvent help(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    list.rows[0]->name = "A very long name <i>that</i> nobody could ever read in a column of this width";
    reload();
    EXPECT_EQ(toolTipAt(1, Column::name), QString());
    EXPECT_EQ(toolTipAt(0, Column::name),
              QString::fromUtf8(list.rows[0]->name.c_str())); // labels show markup as it is
}

TEST_F(SWTableViewTest, TheScrollBarBeginsUnderTheHeader) {
    list = manyRows(500, 2);
    reload();
    QApplication::processEvents();
    const QPoint top = view.verticalScrollBar()->mapTo(&view, QPoint(0, 0));
    EXPECT_EQ(top.y(), view.header().height());
}

TEST_F(SWTableViewTest, RowsAreTwentyFourPixelsHighAndMoreWhereTheFontNeedsIt) {
    QFont font = view.font();
    font.setPixelSize(13);
    view.setFont(font);
    const int needed = view.fontMetrics().height() + 6;
    EXPECT_EQ(view.rowHeight(0), std::max(24, needed));
    font.setPixelSize(40);
    view.setFont(font);
    EXPECT_EQ(view.rowHeight(0), view.fontMetrics().height() + 6);
}

TEST_F(SWTableViewTest, HomeAndEndGoToTheFirstAndTheLastRow) {
    view.setCurrentIndex(cell(4, Column::album));
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_EQ(view.currentIndex(), cell(11, Column::album));
    QTest::keyClick(&view, Qt::Key_Home);
    EXPECT_EQ(view.currentIndex(), cell(0, Column::album));
    EXPECT_EQ(view.selectedRows(), Rows{0});
}

TEST_F(SWTableViewTest, LeftAndRightDoNotDriftSideways) {
    view.resize(500, 400);
    view.setCurrentIndex(cell(4, Column::name));
    for (int press = 0; press < 9; ++press)
        QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_EQ(view.currentIndex(), cell(4, Column::name));
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

/// The first rows of the sample's groups are 0, 2, 4, 7 and 9.
TEST_F(SWTableViewTest, CtrlUpAndDownGoByGroups) {
    view.setCurrentIndex(cell(0, Column::name));
    std::vector<int> rows;
    for (int press = 0; press < 5; ++press) {
        QTest::keyClick(&view, Qt::Key_Down, Qt::ControlModifier);
        rows.push_back(view.currentIndex().row());
    }
    EXPECT_EQ(rows, (Rows{2, 4, 7, 9, 9}));
    view.setCurrentIndex(cell(11, Column::name));
    QTest::keyClick(&view, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(view.currentIndex().row(), 9) << "from inside a group to its first row";
    QTest::keyClick(&view, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(view.currentIndex().row(), 7);
    EXPECT_EQ(view.selectedRows(), Rows{7});
    QTest::keyClick(&view, Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(view.selectedRows(), (Rows{4, 5, 6, 7}));
}

TEST_F(SWTableViewTest, LocationTakesTheRestOfTheWidth) {
    const int location = static_cast<int>(Column::location);
    EXPECT_EQ(view.header().length(), view.viewport()->width());
    view.resize(900, 400);
    EXPECT_GE(view.columnWidth(location), 300);
    EXPECT_GT(view.header().length(), view.viewport()->width());
}

TEST_F(SWTableViewTest, ColumnsCanBeMovedAndResized) {
    EXPECT_TRUE(view.header().sectionsMovable());
    EXPECT_EQ(view.header().sectionResizeMode(static_cast<int>(Column::name)), QHeaderView::Interactive);
    view.header().moveSection(2, 5);
    EXPECT_EQ(view.header().visualIndex(2), 5);
    EXPECT_EQ(cell(0, Column::name).data().toString(), QStringLiteral("Amber Letters"));
}

} // namespace songsweep::test
