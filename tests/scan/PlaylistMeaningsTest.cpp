// SPDX-License-Identifier: MIT
#include "scan/PlaylistMeanings.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep::test {

namespace {

bool means(const std::string& name, const std::string& path, const std::string& playlist = "lists/a.m3u") {
    const std::vector<std::string> meanings = meaningsOf(name, playlist, "/home/ann/Music");
    return std::find(meanings.begin(), meanings.end(), path) != meanings.end();
}

} // namespace

TEST(PlaylistMeanings, MeansPathsBesideItself) {
    EXPECT_TRUE(means("a.mp3", "lists/a.mp3"));
    EXPECT_TRUE(means("../Rock/./a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("a.mp3", "a.mp3", "top.m3u"));
    EXPECT_TRUE(meaningsOf("../../../etc/a.mp3", "lists/a.m3u", "/home/ann/Music").empty());
}

TEST(PlaylistMeanings, MeansAbsolutePathsAndUrls) {
    EXPECT_TRUE(means("/home/ann/Music/Rock/a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("file:///home/ann/Music/Rock/a%20b.mp3", "Rock/a b.mp3"));
    EXPECT_TRUE(means("a%20b%C3%A9.mp3", "lists/a bé.mp3"));
    EXPECT_TRUE(means("100%.mp3", "lists/100%.mp3"));
    EXPECT_TRUE(meaningsOf("/home/ann/Musical/a.mp3", "lists/a.m3u", "/home/ann/Music").empty());
}

TEST(PlaylistMeanings, KnowsBothSeparatorsAndLatin1) {
    EXPECT_TRUE(means("..\\Rock\\a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("odd\\name.mp3", "lists/odd\\name.mp3"));
    EXPECT_TRUE(means("caf\xE9.mp3", "lists/café.mp3"));
    EXPECT_TRUE(means("caf\xE9.mp3", "lists/caf\xE9.mp3"));
}

} // namespace songsweep::test
