// SPDX-License-Identifier: MIT
#include "ui/TableFixture.h"

#include <QAccessible>

namespace songsweep::test {

namespace {

class SWTableViewAccessibilityTest : public TableFixture {
  protected:
    QAccessibleTableInterface* table() {
        QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&view);
        return whole ? whole->tableInterface() : nullptr;
    }
    QString name(int row, Column column) {
        return table()->cellAt(row, static_cast<int>(column))->text(QAccessible::Name);
    }
};

} // namespace

TEST_F(SWTableViewAccessibilityTest, TheTableSaysWhatItIs) {
    view.setAccessibleName(QStringLiteral("Duplicate tracks"));
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(whole, nullptr);
    EXPECT_EQ(whole->role(), QAccessible::Table);
    EXPECT_EQ(whole->text(QAccessible::Name), QStringLiteral("Duplicate tracks"));
    ASSERT_NE(table(), nullptr);
    EXPECT_EQ(table()->rowCount(), 12);
    EXPECT_EQ(table()->columnCount(), 15);
}

TEST_F(SWTableViewAccessibilityTest, CellsAreCells) {
    EXPECT_EQ(table()->cellAt(0, 2)->role(), QAccessible::Cell);
    EXPECT_EQ(name(0, Column::bitrate), QStringLiteral("Bit rate: 320"));
    EXPECT_EQ(name(2, Column::rating), QStringLiteral("Rating: 3 of 5 stars"));
    EXPECT_EQ(name(6, Column::dtrack), QStringLiteral("File missing"));
    EXPECT_EQ(name(1, Column::checkbox), QStringLiteral("Marked"));
}

TEST_F(SWTableViewAccessibilityTest, CellsSayWhereTheirRowStands) {
    EXPECT_EQ(table()->cellAt(5, 2)->text(QAccessible::Description),
              QStringLiteral("Group 3 of 5, copy 2 of 3"));
}

TEST_F(SWTableViewAccessibilityTest, SelectedCellsSaySo) {
    select(4, 5);
    EXPECT_TRUE(table()->cellAt(4, 2)->state().selected);
    EXPECT_FALSE(table()->cellAt(6, 2)->state().selected);
    EXPECT_EQ(table()->selectedRowCount(), 2);
}

TEST_F(SWTableViewAccessibilityTest, TheDrawnColumnsHaveTitlesToo) {
    EXPECT_EQ(table()->columnDescription(static_cast<int>(Column::rating)), QStringLiteral("Rating"));
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::AccessibleTextRole),
              QStringLiteral("Marked for deletion"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::AccessibleTextRole), QStringLiteral("File missing"));
}

} // namespace songsweep::test
