// SPDX-License-Identifier: MIT
#include "cli/TextTable.h"

#include <gtest/gtest.h>

namespace songsweep::cli {
namespace {

TEST(TextTable, CountsThePlacesOfWideAndCombiningCharacters) {
    EXPECT_EQ(displayWidth(""), 0);
    EXPECT_EQ(displayWidth("abc"), 3);
    EXPECT_EQ(displayWidth("Bj\u00f6rk"), 5);
    EXPECT_EQ(displayWidth("Bjo\u0308rk"), 5);
    EXPECT_EQ(displayWidth("\u65e5\u672c"), 4);
    EXPECT_EQ(displayWidth("\uff71"), 1) << "half width";
    EXPECT_EQ(displayWidth("\xff"), 1) << "no valid text";
}

TextTable twoColumns() { return TextTable({{"Name", Alignment::left, 10}, {"Plays", Alignment::right, 10}}); }

TEST(TextTable, AlignsCellsUnderTheirTitles) {
    TextTable table = twoColumns();
    table.measure({"\u65e5\u672c\u8a9e", "7"});
    table.measure({"a", "1234567"});
    EXPECT_EQ(table.titles(), "Name      Plays\n");
    EXPECT_EQ(table.line({"\u65e5\u672c\u8a9e", "7"}), "\u65e5\u672c\u8a9e        7\n");
    EXPECT_EQ(table.line({"a", "1234567"}), "a       1234567\n");
}

TEST(TextTable, CutsWhatIsTooLongForItsColumn) {
    TextTable table = twoColumns();
    table.measure({"abcdefghijklm", ""});
    EXPECT_EQ(table.line({"abcdefghijklm", "1"}), "abcdefg...      1\n");
}

TEST(TextTable, KeepsALineInOneLine) {
    TextTable table = twoColumns();
    table.measure({"a\nb\tc", ""});
    EXPECT_EQ(table.line({"a\nb\tc", "1"}), "a b c      1\n");
}

TEST(TextTable, EndsNoLineWithBlanks) {
    const TextTable table({{"Name", Alignment::left, 10}});
    EXPECT_EQ(table.line({"a"}), "a\n");
}

} // namespace
} // namespace songsweep::cli
