// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "ui/SWTableView.h"
#include "ui/SummaryLabel.h"
#include "ui/TrackHeaderView.h"
#include "ui/TrackTableModel.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QSignalSpy>

namespace songsweep::test {
namespace {

using MainWindowResultsTest = MainWindowFixture;

TEST_F(MainWindowResultsTest, WithResultsTheFirstRowIsCurrentAndNoneSelected) {
    showSearching();
    showResults(list);
    EXPECT_EQ(window.tableview().currentIndex().row(), 0);
    EXPECT_TRUE(window.selectedRows().empty());
    EXPECT_EQ(window.selectedRow(), -1);
}

TEST_F(MainWindowResultsTest, TheStripTellsWhatIsShownAndWhatWasSearched) {
    showResults(list);
    EXPECT_EQ(control<QLabel>("statusBottomLabel").text(), QStringLiteral("12 songs"));
    EXPECT_EQ(control<QLabel>("searchedLabel").text(), QStringLiteral("Music: same name"));
}

TEST_F(MainWindowResultsTest, ALongPlaylistIsCutWithDotsBeforeWhatWasCompared) {
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

TEST_F(MainWindowResultsTest, TheStripTellsTheGainAtOnce) {
    list.rows[0]->checkbox = false;
    showResults(list);
    const auto& gain = control<QLabel>("gainLabel");
    const int marked = checkedCount(list.rows);
    EXPECT_TRUE(gain.text().startsWith(QStringLiteral("· 12 copies of 5 songs · %1 marked, ").arg(marked)))
        << gain.text().toStdString();
    list.rows[0]->checkbox = true;
    window.reloadTable(list); // all that the space bar does
    EXPECT_TRUE(gain.text().contains(QStringLiteral("· %1 marked, ").arg(marked + 1)));
    for (TrackRecord* row : list.rows)
        row->checkbox = false;
    window.reloadTable(list);
    EXPECT_EQ(gain.text(), QStringLiteral("· 12 copies of 5 songs"));
    window.setTableVisible(false);
    EXPECT_FALSE(gain.isVisible());
}

TEST_F(MainWindowResultsTest, SelectedRowsAreCopied) {
    showResults(list);
    window.tableview().setCurrentIndex(window.tableModel().index(2, 2));
    item("copyRowsMenuitem").trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count(QLatin1Char('\n')), 2) << "titles and a row";
}

TEST_F(MainWindowResultsTest, WithoutResultsTheStripIsEmpty) {
    showResults({});
    EXPECT_FALSE(control<QLabel>("statusBottomLabel").isVisible());
    EXPECT_TRUE(control<QLabel>("searchedLabel").text().isEmpty());
    EXPECT_TRUE(control<QWidget>("strip").isVisible());
}

TEST_F(MainWindowResultsTest, TheHorizontalScrollerComesAndGoes) {
    showResults(list);
    window.setHorizontalScroller(true);
    EXPECT_EQ(window.tableview().horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    window.setHorizontalScroller(false);
    EXPECT_EQ(window.tableview().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

TEST_F(MainWindowResultsTest, TheSortIndicatorIsThatOfTheHeader) {
    window.setSortIndicator(Column::time, false);
    EXPECT_EQ(window.tableview().header().sortedColumn(), Column::time);
    EXPECT_FALSE(window.tableview().header().isAscending());
    window.clearSortIndicator();
    EXPECT_FALSE(window.tableview().header().sortedColumn());
}

TEST_F(MainWindowResultsTest, ACheckBoxSaysWhichRowItIsOf) {
    showResults(list);
    QSignalSpy edits(&window, &MainWindow::setObjectValue);
    window.tableModel().setData(window.tableModel().index(3, 0), Qt::Checked, Qt::CheckStateRole);
    ASSERT_EQ(edits.size(), 1);
    EXPECT_EQ(edits[0][0].toBool(), true);
    EXPECT_EQ(edits[0][1].value<Column>(), Column::checkbox);
    EXPECT_EQ(edits[0][2].toInt(), 3);
}

} // namespace
} // namespace songsweep::test
