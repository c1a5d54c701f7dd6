// SPDX-License-Identifier: MIT
#include "app/MainWindowFixture.h"
#include "theme/ThemeColors.h"
#include "ui/CopiesPanelView.h"
#include "ui/SWTableView.h"
#include "ui/TrackTableModel.h"

#include <QSignalSpy>

namespace songsweep::test {
namespace {

class MainWindowDetailsTest : public MainWindowFixture {
  protected:
    MainWindowDetailsTest() {
        window.setCopyReason([](const TrackRecord& record) {
            return record.checkbox ? QStringLiteral("goes") : QStringLiteral("stays");
        });
        showResults(list);
    }
    CopiesPanelView& panel() { return control<CopiesPanelView>("copiesPanel"); }
    QTableWidgetItem& value(const char* title, int copy) {
        for (int row = 0; row < panel().rowCount(); ++row)
            if (panel().verticalHeaderItem(row)->text() == QLatin1String(title))
                return *panel().item(row, copy);
        throw std::runtime_error(title);
    }
    void goTo(int row) { window.tableview().setCurrentIndex(window.tableModel().index(row, 2)); }
};

TEST_F(MainWindowDetailsTest, ShowTheCopiesOfTheCurrentSongSideBySide) {
    EXPECT_FALSE(panel().isVisible());
    item("detailsMenuitem").trigger();
    goTo(5);
    ASSERT_EQ(panel().columnCount(), 3);
    EXPECT_EQ(value("Bit rate", 0).text(), QString::fromUtf8(list.rows[4]->bitrate.c_str()));
    EXPECT_EQ(value("Bit rate", 2).text(), QString::fromUtf8(list.rows[6]->bitrate.c_str()));
    for (int copy = 0; copy < 3; ++copy) {
        const bool marked = list.rows[static_cast<std::size_t>(4 + copy)]->checkbox;
        EXPECT_EQ(value("Marked", copy).checkState() == Qt::Checked, marked);
        EXPECT_EQ(value("Marked", copy).text(), marked ? QStringLiteral("goes") : QStringLiteral("stays"));
    }
    goTo(0);
    EXPECT_EQ(panel().columnCount(), 2);
}

TEST_F(MainWindowDetailsTest, WhatDiffersStandsOut) {
    item("detailsMenuitem").trigger();
    goTo(0);
    const ThemeColors& colors = themeColors(panel().palette());
    EXPECT_EQ(value("Bit rate", 0).font().weight(), QFont::DemiBold);
    EXPECT_EQ(value("Bit rate", 0).foreground().color(), colors.text);
    EXPECT_EQ(value("Name", 0).font().weight(), QFont::Normal);
    EXPECT_EQ(value("Name", 0).foreground().color(), colors.secondaryText);
}

TEST_F(MainWindowDetailsTest, AMarkThereIsAMarkOfItsRow) {
    item("detailsMenuitem").trigger();
    goTo(5);
    QSignalSpy marks(&window, &MainWindow::setObjectValue);
    QTableWidgetItem& mark = value("Marked", 2);
    const bool before = mark.checkState() == Qt::Checked;
    mark.setCheckState(before ? Qt::Unchecked : Qt::Checked);
    ASSERT_EQ(marks.size(), 1);
    EXPECT_EQ(marks[0][0].toBool(), !before);
    EXPECT_EQ(marks[0][1].value<Column>(), Column::checkbox);
    EXPECT_EQ(marks[0][2].toInt(), 6);
    list.rows[6]->checkbox = !before;
    window.reloadTable(list);
    EXPECT_EQ(value("Marked", 2).checkState() == Qt::Checked, !before);
    EXPECT_EQ(marks.size(), 1) << "showing a mark is no wish";
}

TEST_F(MainWindowDetailsTest, OfAGroupWithoutAnEndTheCopiesAroundAreShown) {
    const DisplayedList many = manyRows(1, 100);
    showResults(many);
    item("detailsMenuitem").trigger();
    goTo(50);
    EXPECT_EQ(panel().columnCount(), CopiesPanelView::mostCopies);
    goTo(99);
    EXPECT_EQ(panel().columnCount(), CopiesPanelView::mostCopies);
}

TEST_F(MainWindowDetailsTest, SmallDifferencesAreNamedWhereThereAreSome) {
    item("detailsMenuitem").trigger();
    goTo(0);
    EXPECT_TRUE(panel().isRowHidden(1));
    EXPECT_TRUE(panel().isRowHidden(2));
    window.setCopyDifferences([](const std::vector<TrackRecord*>& copies) {
        QStringList differences(static_cast<int>(copies.size()));
        differences.last() = QStringLiteral("1 s longer");
        return differences;
    });
    goTo(1);
    EXPECT_FALSE(panel().isRowHidden(1));
    EXPECT_EQ(value("Difference", 1).text(), QStringLiteral("1 s longer"));
    EXPECT_TRUE(panel().isRowHidden(2)) << "no sound was compared";
}

} // namespace
} // namespace songsweep::test
