// SPDX-License-Identifier: MIT
#include "platform/TerminalText.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(TerminalText, LeavesNamesOfAllWritingsAsTheyAre) {
    const std::string text = "Björk, 椎名林檎, فيروز, 👩\u200D🎤 e\u0301 \u00A0 ~";
    EXPECT_EQ(terminalText(text), text);
    EXPECT_EQ(terminalLine(text), text);
}

TEST(TerminalText, ShowsEscapeSequences) {
    EXPECT_EQ(terminalText("\x1B[31mred\x1B[0m"), "<U+001B>[31mred<U+001B>[0m");
    EXPECT_EQ(terminalText("\x1B]0;title\a"), "<U+001B>]0;title<U+0007>");
    EXPECT_EQ(terminalText("a\b\x7F"), "a<U+0008><U+007F>");
    EXPECT_EQ(terminalText(std::string_view("a\0b", 3)), "a<U+0000>b");
}

TEST(TerminalText, ShowsTheControlsBehindAscii) {
    EXPECT_EQ(terminalText("\u009B31m \u0090 \u0085"), "<U+009B>31m <U+0090> <U+0085>");
}

TEST(TerminalText, ShowsMarksThatTurnTheDirection) {
    EXPECT_EQ(terminalText("song\u202E3pm.exe\u202C"), "song<U+202E>3pm.exe<U+202C>");
    EXPECT_EQ(terminalText("\u200E\u200F\u061C\u2066\u2069"), "<U+200E><U+200F><U+061C><U+2066><U+2069>");
}

TEST(TerminalText, ShowsSeparatorsOfLinesAndParagraphs) {
    EXPECT_EQ(terminalText("a\u2028b\u2029c"), "a<U+2028>b<U+2029>c");
}

TEST(TerminalText, ShowsBytesThatAreNotUtf8) {
    EXPECT_EQ(terminalText("caf\xE9 \x9B"
                           "31m"),
              "caf<E9> <9B>31m");
    EXPECT_EQ(terminalText("\xC2"), "<C2>");
}

TEST(TerminalText, KeepsTheLineBreaksOfATextOnly) {
    EXPECT_EQ(terminalText("a\nb\tc\r\nd"), "a\nb\tc\r\nd");
    EXPECT_EQ(terminalText("all is well\rno"), "all is well<U+000D>no") << "which would write over the line";
    EXPECT_EQ(terminalLine("a\nb\tc\r\n"), "a<U+000A>b<U+0009>c<U+000D><U+000A>");
}

} // namespace
} // namespace songsweep
