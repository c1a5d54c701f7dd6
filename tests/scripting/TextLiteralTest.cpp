// SPDX-License-Identifier: MIT
#include "scripting/TextLiteral.h"

#include "scripting/InterpretedAppleScript.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

class TextLiteralTest : public testing::TestWithParam<const char*> {};

TEST_P(TextLiteralTest, ReadsBackAsItsWords) {
    const std::string words = GetParam();
    InterpretedAppleScript script({});
    const Result<Descriptor> result = script.executeAndReturnError('"' + escapedWords(words) + '"');
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(result.value().stringValue(), words);
}

INSTANTIATE_TEST_SUITE_P(words, TextLiteralTest,
                         testing::Values("", "plain", "\"", "\\", "\\\"", "\\n", "\\\\n", "ends in \\",
                                         "\" & (1 / 0) & \"", "line\nbreak", "return\r", "tab\t", "|bars|",
                                         "--comment", "(* comment *)", "\u00AC", "caf\u00e9", "no text \xff",
                                         "\xc3", "Macintosh HD:say \"hi\":a/b\\c.mp3"));

TEST(TextLiteral, HoldsAllWordsButAZeroByte) {
    EXPECT_TRUE(canStandInText("\"\\\n\xff"));
    EXPECT_FALSE(canStandInText(std::string_view("a\0b", 3)));
}

} // namespace
} // namespace songsweep
