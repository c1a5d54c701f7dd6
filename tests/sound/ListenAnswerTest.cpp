// SPDX-License-Identifier: MIT
#include "sound/ListenAnswer.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(ListenAnswer, ComesBackAsItWas) {
    const Fingerprint sound = {0, 1, 0xDEADBEEF, 0xFFFFFFFF};
    const std::string line = answerLine(sound);
    EXPECT_EQ(line, "sound 0000000000000001deadbeefffffffff\n");
    EXPECT_EQ(readAnswer(line.substr(0, line.size() - 1)).value(), sound);
    EXPECT_EQ(answerLine(Error{.message = "no sound"}), "problem no sound\n");
    EXPECT_EQ(readAnswer("problem no sound").error().message, "no sound");
}

TEST(ListenAnswer, WhatIsNoAnswerIsAProblem) {
    for (const char* line :
         {"", "sound", "sound ", "sound 123", "sound 0000000g", "Sound 00000000", "\xff\xfe"})
        EXPECT_FALSE(readAnswer(line)) << line;
}

} // namespace
} // namespace songsweep
