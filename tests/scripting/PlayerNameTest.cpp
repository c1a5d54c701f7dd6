// SPDX-License-Identifier: MIT
#include "scripting/PlayerName.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(PlayerName, StandsInEveryAddress) {
    EXPECT_EQ(addressedTo("Music", "tell application \"iTunes\" \nget version \nend tell \n"
                                   "tell application \"iTunes\" to stop"),
              "tell application \"Music\" \nget version \nend tell \ntell application \"Music\" to stop");
}

TEST(PlayerName, LeavesOtherWordsAlone) {
    for (const char* text :
         {"", "get version", "tell application \"Finder\" to activate",
          "tell application \"iTunes Helper\" to quit", "get \"application \\\"iTunes\\\"\""})
        EXPECT_EQ(addressedTo("Music", text), text);
    EXPECT_EQ(addressedTo("Music", "tell application \"iTunes\" to play playlist \"iTunes\""),
              "tell application \"Music\" to play playlist \"iTunes\"");
}

TEST(PlayerName, IsTheSameForITunesItself) {
    const std::string text = "tell application \"iTunes\" to stop";
    EXPECT_EQ(addressedTo("iTunes", text), text);
}

} // namespace
} // namespace songsweep
