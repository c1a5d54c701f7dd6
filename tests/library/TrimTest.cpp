// SPDX-License-Identifier: MIT
#include "library/Trim.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(Trim, TakesBlanksAndLineBreaksFromBothEnds) {
    EXPECT_EQ(trimmed(" \t\r\n a  b \n"), "a  b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(" \n "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Trim, KnowsTheWhiteSpaceOfAllUnicode) {
    EXPECT_EQ(trimmed("\u00a0\u2003\u3000é\u2028\u0085\u1680"), "é");
    EXPECT_EQ(trimmed("\u2003"), "");
}

TEST(Trim, KeepsWhatOnlyLooksEmpty) {
    EXPECT_EQ(trimmed("\u200b a"), "\u200b a");
    EXPECT_EQ(trimmed("\x01 a \x7f"), "\x01 a \x7f");
}

TEST(Trim, LeavesBrokenBytes) { EXPECT_EQ(trimmed(" \xff "), "\xff"); }

} // namespace
} // namespace songsweep
