// SPDX-License-Identifier: MIT
#include "scan/FileTitle.h"

#include <gtest/gtest.h>

namespace songsweep::test {

TEST(FileTitle, LeavesOutNumberAndEnding) {
    EXPECT_EQ(titleOfFile("Album/03 Song.mp3", 0), "Song");
    EXPECT_EQ(titleOfFile("03. Song.mp3", 0), "Song");
    EXPECT_EQ(titleOfFile("3 - Song.mp3", 0), "Song");
    EXPECT_EQ(titleOfFile("1-03 Song.mp3", 0), "Song");
    EXPECT_EQ(titleOfFile("03_Song.name.mp3", 0), "Song.name");
}

TEST(FileTitle, KeepsWhatIsNoNumberOfATrack) {
    EXPECT_EQ(titleOfFile("7 Rings.mp3", 0), "7 Rings");
    EXPECT_EQ(titleOfFile("1979.mp3", 0), "1979");
    EXPECT_EQ(titleOfFile("1999 Party.mp3", 0), "1999 Party");
    EXPECT_EQ(titleOfFile("03.mp3", 0), "03");
    EXPECT_EQ(titleOfFile("22nd Street.mp3", 0), "22nd Street");
}

TEST(FileTitle, BelievesTheTrackNumberOfTheTags) {
    EXPECT_EQ(titleOfFile("99 Luftballons.mp3", 4), "99 Luftballons");
    EXPECT_EQ(titleOfFile("04 99 Luftballons.mp3", 4), "99 Luftballons");
}

TEST(FileTitle, IsSplitAtItsFirstDash) {
    const FileTitle parts = splitTitle("Sigur Rós - Ný batterí - live");
    EXPECT_EQ(parts.artist, "Sigur Rós");
    EXPECT_EQ(parts.name, "Ný batterí - live");
    EXPECT_EQ(splitTitle("Rock-a-bye").name, "Rock-a-bye");
    EXPECT_EQ(splitTitle(" - Song").artist, "");
}

} // namespace songsweep::test
