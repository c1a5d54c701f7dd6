// SPDX-License-Identifier: MIT
#include "cli/TextTable.h"

#include "cli/Csv.h"

#include <gtest/gtest.h>

namespace songsweep::cli {
namespace {

TEST(TextTable, countsThePlacesOfWideAndCombiningCharacters) {
    EXPECT_EQ(displayWidth(""), 0);
    EXPECT_EQ(displayWidth("abc"), 3);
    EXPECT_EQ(displayWidth("Bj\u00f6rk"), 5);
    EXPECT_EQ(displayWidth("Bjo\u0308rk"), 5);
    EXPECT_EQ(displayWidth("\u65e5\u672c"), 4);
    EXPECT_EQ(displayWidth("\uff71"), 1) << "half width";
    EXPECT_EQ(displayWidth("\xff"), 1) << "no valid text";
}

TextTable twoColumns() { return TextTable({{"Name", Alignment::left, 10}, {"Plays", Alignment::right, 10}}); }

TEST(TextTable, alignsCellsUnderTheirTitles) {
    TextTable table = twoColumns();
    table.measure({"\u65e5\u672c\u8a9e", "7"});
    table.measure({"a", "1234567"});
    EXPECT_EQ(table.titles(), "Name      Plays\n");
    EXPECT_EQ(table.line({"\u65e5\u672c\u8a9e", "7"}), "\u65e5\u672c\u8a9e        7\n");
    EXPECT_EQ(table.line({"a", "1234567"}), "a       1234567\n");
}

TEST(TextTable, cutsWhatIsTooLongForItsColumn) {
    TextTable table = twoColumns();
    table.measure({"abcdefghijklm", ""});
    EXPECT_EQ(table.line({"abcdefghijklm", "1"}), "abcdefg...      1\n");
}

TEST(TextTable, keepsALineInOneLine) {
    TextTable table = twoColumns();
    table.measure({"a\nb\tc", ""});
    EXPECT_EQ(table.line({"a\nb\tc", "1"}), "a b c      1\n");
}

TEST(TextTable, endsNoLineWithBlanks) {
    const TextTable table({{"Name", Alignment::left, 10}});
    EXPECT_EQ(table.line({"a"}), "a\n");
}

TEST(Csv, quotesFieldsThatHoldSeparators) {
    EXPECT_EQ(csvField("plain text"), "plain text");
    EXPECT_EQ(csvField(""), "");
    EXPECT_EQ(csvField("a,b"), "\"a,b\"");
    EXPECT_EQ(csvField("say \"a\""), "\"say \"\"a\"\"\"");
    EXPECT_EQ(csvField("a\r\nb"), "\"a\r\nb\"");
}

} // namespace
} // namespace songsweep::cli
