// SPDX-License-Identifier: MIT
#include "platform/Ascii.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(Ascii, ATextBeyondItIsKnown) {
    EXPECT_TRUE(isAscii(""));
    EXPECT_TRUE(isAscii("a/b \x7f"));
    EXPECT_FALSE(isAscii("Bj\u00f6rk"));
    EXPECT_FALSE(isAscii('\x80'));
}

TEST(Ascii, OnlyTheLettersFromAToZHaveAnotherCase) {
    EXPECT_EQ(asciiLower(std::string("@AMZ[ \u00d6 amz")), "@amz[ \u00d6 amz");
    EXPECT_EQ(asciiUpper('a'), 'A');
    EXPECT_EQ(asciiUpper('z'), 'Z');
    EXPECT_EQ(asciiUpper('`'), '`');
    EXPECT_EQ(asciiUpper('{'), '{');
}

TEST(Ascii, HexadecimalDigitsCountInEitherCase) {
    EXPECT_EQ(hexDigit('0'), 0);
    EXPECT_EQ(hexDigit('9'), 9);
    EXPECT_EQ(hexDigit('a'), 10);
    EXPECT_EQ(hexDigit('F'), 15);
    for (const char other : {'/', ':', '@', 'G', '`', 'g', '\x10'})
        EXPECT_EQ(hexDigit(other), -1) << other;
}

} // namespace
} // namespace songsweep
