// SPDX-License-Identifier: MIT
#include "dupes/FileKind.h"

#include "dupes/MarkRows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::MarkRows;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileKindTest, TheExtensionFollowsTheLastDotOfTheLastComponent) {
    EXPECT_EQ(fileKind("/a/song.mp3"), "MP3");
    EXPECT_EQ(fileKind("/a/b.c/song"), "");
    EXPECT_EQ(fileKind("/a/song.tar.gz"), "GZ");
    EXPECT_EQ(fileKind("/a/song."), "");
    EXPECT_EQ(fileKind(""), "");
    EXPECT_EQ(fileKind("msng"), "");
    EXPECT_EQ(fileKind("/a/song.éß"), "ÉSS");
}

TEST(FileKindTest, AKindIsComparedInUpperCase) {
    EXPECT_TRUE(isOfKind("/a/song.Mp3", "MP3"));
    EXPECT_FALSE(isOfKind("/a/song.mp3", "mp3"));
    EXPECT_FALSE(isOfKind("/a/song.mp", "MP3"));
    EXPECT_FALSE(isOfKind("/a/song.mp34", "MP3"));
    EXPECT_TRUE(isOfKind("/a/song.é", "É"));
    EXPECT_TRUE(isOfKind("/a/song", ""));
}

TEST(FileKindTest, KindsStandInTheOrderOfTheirFirstAppearance) {
    MarkRows rows;
    for (const char* const location : {"song.mp3", "a.m4a", "b.MP3", "plain", "c.M4A", "d.aiff"})
        rows.add(1, {.location = location});
    EXPECT_THAT(kindsOf(rows.rows()), ElementsAre("MP3", "M4A", "AIFF"));
}

TEST(FileKindTest, KindsOfManyRowsStandInThatOrder) {
    MarkRows rows;
    for (int row = 0; row < 100'000; ++row)
        rows.add(row, {.location = row == 90'000 ? "z.wav" : row < 60'000 ? "a.mp3" : "b.m4a"});
    EXPECT_THAT(kindsOf(rows.rows()), ElementsAre("MP3", "M4A", "WAV"));
}

TEST(FileKindTest, NoRowsGiveNoKinds) { EXPECT_THAT(kindsOf({}), IsEmpty()); }

} // namespace
} // namespace songsweep
