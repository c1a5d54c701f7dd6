// SPDX-License-Identifier: MIT
#include "scan/PlaylistReturn.h"

#include "scan/PlaylistCuts.h"

#include <gtest/gtest.h>

#include <random>

namespace songsweep::test {

namespace {

const std::string folder = "/no/such/folder";
const auto everyFile = [](const std::string&) { return true; };

/// A playlist out of which a deletion takes the files that begin with "gone".
struct CutPlaylist {
    CutPlaylist(std::string text, const std::string& name = "x.m3u")
        : bytes(std::move(text)) {
        GoneFiles gone(folder);
        for (int i = 0; i < 100; ++i)
            gone.add(folder + "/gone" + std::to_string(i) + ".mp3");
        recorded = playlistCuts(bytes, name, gone).value();
        recorded.path = folder + "/" + name;
        rest = withoutCuts(bytes, recorded);
    }

    std::string bytes;
    RecordedPlaylist recorded;
    std::string rest;
};

} // namespace

TEST(PlaylistReturn, MakesAPlaylistThatNobodyChangedWhatItWas) {
    const CutPlaylist list("\xEF\xBB\xBFgone0.mp3\r\na.mp3\r\ngone1.mp3\r\ngone2.mp3\r\nb.mp3\ngone0.mp3");
    EXPECT_EQ(list.rest, "\xEF\xBB\xBF"
                         "a.mp3\r\nb.mp3\n");
    const PlaylistReturn back = returnLines(list.rest, list.recorded, everyFile);
    EXPECT_EQ(back.bytes, list.bytes);
    EXPECT_TRUE(back.isComplete);
}

TEST(PlaylistReturn, LeavesAPlaylistAloneThatHasItsLines) {
    const CutPlaylist list("gone0.mp3\na.mp3\ngone0.mp3\n");
    EXPECT_EQ(returnLines(list.bytes, list.recorded, everyFile).bytes, list.bytes);
}

TEST(PlaylistReturn, PutsBackThoseThatAreWantedAndLaterTheRest) {
    const CutPlaylist list("a.mp3\ngone0.mp3\ngone1.mp3\ngone2.mp3\nb.mp3\n");
    const auto isSecond = [](const std::string& file) { return file == folder + "/gone1.mp3"; };
    const std::string some = returnLines(list.rest, list.recorded, isSecond).bytes;
    EXPECT_EQ(some, "a.mp3\ngone1.mp3\nb.mp3\n");
    EXPECT_EQ(returnLines(some, list.recorded, everyFile).bytes, list.bytes);
}

TEST(PlaylistReturn, FindsThePlacesInAPlaylistThatWasChanged) {
    const CutPlaylist list("a.mp3\n#EXTINF:1,x\ngone0.mp3\nb.mp3\nc.mp3\ngone1.mp3\ngone2.mp3\n");
    const PlaylistReturn back =
        returnLines("new.mp3\na.mp3\nb.mp3\nc.mp3\nnewer.mp3\n", list.recorded, everyFile);
    EXPECT_EQ(back.bytes, "new.mp3\na.mp3\n#EXTINF:1,x\ngone0.mp3\nb.mp3\nc.mp3\ngone1.mp3\ngone2.mp3\n"
                          "newer.mp3\n");
    EXPECT_TRUE(back.isComplete);
}

TEST(PlaylistReturn, PutsNoLineBackWhosePlaceIsNotKnown) {
    const CutPlaylist list("a.mp3\ngone0.mp3\nb.mp3\nc.mp3\nd.mp3\ngone1.mp3\n");
    const PlaylistReturn back = returnLines("d.mp3\nother.mp3\n", list.recorded, everyFile);
    EXPECT_EQ(back.bytes, "d.mp3\ngone1.mp3\nother.mp3\n");
    EXPECT_FALSE(back.isComplete);
}

TEST(PlaylistReturn, PutsNoSecondLineForAFileThatIsNamedAgain) {
    const CutPlaylist list("a.mp3\ngone0.mp3\nb.mp3\n");
    const PlaylistReturn back = returnLines("gone0.mp3\na.mp3\nb.mp3\n", list.recorded, everyFile);
    EXPECT_EQ(back.bytes, "gone0.mp3\na.mp3\nb.mp3\n");
    EXPECT_TRUE(back.isComplete);
}

TEST(PlaylistReturn, GivesNoNumberOfAPlsTwice) {
    const CutPlaylist list("[playlist]\nFile1=a.mp3\nFile2=gone0.mp3\nFile3=b.mp3\n", "x.pls");
    const std::string renumbered = "[playlist]\nFile1=a.mp3\nFile2=b.mp3\n";
    const PlaylistReturn back = returnLines(renumbered, list.recorded, everyFile);
    EXPECT_EQ(back.bytes, renumbered);
    EXPECT_FALSE(back.isComplete);
}

TEST(PlaylistReturn, KeepsAnXspfWellFormed) {
    const CutPlaylist list("<playlist><trackList>\n<track><location>a.mp3</location></track>\n"
                           "<track><location>gone0.mp3</location></track>\n</trackList></playlist>\n",
                           "x.xspf");
    const std::string moved = "<playlist><trackList></trackList></playlist>\n<!-- \n"
                              "<track><location>a.mp3</location></track>\n-->\n";
    EXPECT_EQ(returnLines(moved, list.recorded, everyFile).bytes, moved);
    const std::string longer =
        "<playlist>\n<title>x</title><trackList>\n<track><location>a.mp3</location></track>\n"
        "</trackList></playlist>\n";
    EXPECT_NE(returnLines(longer, list.recorded, everyFile).bytes.find("gone0.mp3"), std::string::npos);
}

/// Any list of lines, any of them gone, any part of those back, and then the rest.
TEST(PlaylistReturn, AlwaysComesToTheSameBytes) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes;
        for (unsigned i = random() % 12; i > 0; --i) {
            if (random() % 4 == 0) bytes += random() % 2 ? "#EXTINF:1,x\n" : "# \xE9\n";
            bytes += (random() % 2 ? "gone" : "kept") + std::to_string(random() % 3) + ".mp3";
            bytes += random() % 5 ? "\n" : random() % 2 ? "\r\n" : "\r";
        }
        const CutPlaylist list(bytes);
        const auto isFirst = [&](const std::string& file) { return file.ends_with("0.mp3"); };
        const std::string some = returnLines(list.rest, list.recorded, isFirst).bytes;
        ASSERT_EQ(returnLines(some, list.recorded, everyFile).bytes, bytes);
    }
}

} // namespace songsweep::test
