// SPDX-License-Identifier: MIT
#include "cli/Csv.h"

#include <gtest/gtest.h>

namespace songsweep::cli {
namespace {

TEST(Csv, QuotesFieldsThatHoldSeparators) {
    EXPECT_EQ(csvField("plain text"), "plain text");
    EXPECT_EQ(csvField(""), "");
    EXPECT_EQ(csvField("a,b"), "\"a,b\"");
    EXPECT_EQ(csvField("a;=1+2"), "\"a;=1+2\"");
    EXPECT_EQ(csvField("a\t=1+2"), "\"a\t=1+2\"");
    EXPECT_EQ(csvField("say \"a\""), "\"say \"\"a\"\"\"");
    EXPECT_EQ(csvField("a\r\nb"), "\"a\r\nb\"");
}

TEST(Csv, LeavesNothingToASpreadsheetThatItWouldRun) {
    EXPECT_EQ(csvField("=1+2"), "'=1+2");
    EXPECT_EQ(csvField("=HYPERLINK(\"http://host\",\"a\")"),
              "\"'=HYPERLINK(\"\"http://host\"\",\"\"a\"\")\"");
    EXPECT_EQ(csvField("+cmd|' /C calc'!A0"), "'+cmd|' /C calc'!A0");
    EXPECT_EQ(csvField("-2+3"), "'-2+3");
    EXPECT_EQ(csvField("@SUM(A1)"), "'@SUM(A1)");
    EXPECT_EQ(csvField("\t=1"), "\"'\t=1\"");
    EXPECT_EQ(csvField("\r=1"), "\"'\r=1\"");
    EXPECT_EQ(csvField("＝1"), "'＝1");
}

TEST(Csv, LeavesOtherTextsAndNumbersAsTheyAre) {
    for (const char* text : {"a=b", "-1", "+44", "-1.5", "'", "1-2", "#1"})
        EXPECT_EQ(csvField(text), text);
}

} // namespace
} // namespace songsweep::cli
