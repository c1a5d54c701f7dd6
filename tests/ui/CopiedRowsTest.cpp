// SPDX-License-Identifier: MIT
#include "ui/CopiedRows.h"

#include "ui/TableFixture.h"

namespace songsweep::test {
namespace {

using CopiedRowsTest = TableFixture;

TEST_F(CopiedRowsTest, AreLinesOfCellsUnderTheirTitles) {
    list.rows[1]->album = "two\tparts\nof it";
    list.rows[1]->checkbox = true;
    reload();
    const QStringList lines = tabSeparated(model, {0, 1}).split(QLatin1Char('\n'));
    ASSERT_EQ(lines.size(), 4) << "the last one ends, too";
    const QStringList titles = lines[0].split(QLatin1Char('\t'));
    const QStringList cells = lines[2].split(QLatin1Char('\t'));
    ASSERT_EQ(cells.size(), titles.size());
    const auto value = [&](const char* title) { return cells.at(titles.indexOf(QLatin1String(title))); };
    EXPECT_EQ(value("Marked for deletion"), QStringLiteral("Yes"));
    EXPECT_EQ(value("Album"), QStringLiteral("two parts of it"));
    EXPECT_EQ(value("Rating"), QString::number(list.rows[1]->rating));
    EXPECT_EQ(value("Location"), QString::fromUtf8(list.rows[1]->location.c_str()));
    EXPECT_TRUE(value("Location").endsWith(QLatin1Char('/') + value("File")));
}

TEST_F(CopiedRowsTest, OfNoRowsAreNothing) { EXPECT_EQ(tabSeparated(model, {}), QString()); }

} // namespace
} // namespace songsweep::test
