// SPDX-License-Identifier: MIT
#include "scan/PlaylistFile.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace songsweep::test {

namespace {

using Names = std::vector<std::string>;

bool means(const std::string& name, const std::string& path, const std::string& playlist = "lists/a.m3u") {
    const Names meanings = meaningsOf(name, playlist, "/home/ann/Music");
    return std::find(meanings.begin(), meanings.end(), path) != meanings.end();
}

} // namespace

TEST(PlaylistFile, NamesTheLinesOfAnM3u) {
    EXPECT_EQ(namesInPlaylist("\xEF\xBB\xBF#EXTM3U\r\n#EXTINF:123,Song\r\na b.mp3 \r\n\r\n../c.mp3",
                              PlaylistFormat::m3u),
              (Names{"a b.mp3", "../c.mp3"}));
}

TEST(PlaylistFile, NamesTheFilesOfAPls) {
    EXPECT_EQ(namesInPlaylist("[playlist]\nFile1=a.mp3\nTitle1=File2=x\nfile2 = b.mp3\nFiles=c\nLength1=3\n",
                              PlaylistFormat::pls),
              (Names{"a.mp3", "b.mp3"}));
}

TEST(PlaylistFile, NamesTheLocationsOfAnXspf) {
    EXPECT_EQ(namesInPlaylist(
                  "<?xml version=\"1.0\"?><playlist xmlns=\"http://xspf.org/ns/0/\"><location>no</location>"
                  "<trackList><track><title>x</title><location> a%20b&amp;c.mp3\n</location></track>"
                  "<track><location>file:///home/d.mp3</location></track>",
                  PlaylistFormat::xspf),
              (Names{"a%20b&c.mp3", "file:///home/d.mp3"}));
}

TEST(PlaylistFile, MeansPathsBesideItself) {
    EXPECT_TRUE(means("a.mp3", "lists/a.mp3"));
    EXPECT_TRUE(means("../Rock/./a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("a.mp3", "a.mp3", "top.m3u"));
    EXPECT_TRUE(meaningsOf("../../../etc/a.mp3", "lists/a.m3u", "/home/ann/Music").empty());
}

TEST(PlaylistFile, MeansAbsolutePathsAndUrls) {
    EXPECT_TRUE(means("/home/ann/Music/Rock/a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("file:///home/ann/Music/Rock/a%20b.mp3", "Rock/a b.mp3"));
    EXPECT_TRUE(means("a%20b%C3%A9.mp3", "lists/a bé.mp3"));
    EXPECT_TRUE(means("100%.mp3", "lists/100%.mp3"));
    EXPECT_TRUE(meaningsOf("/home/ann/Musical/a.mp3", "lists/a.m3u", "/home/ann/Music").empty());
}

TEST(PlaylistFile, KnowsBothSeparatorsAndLatin1) {
    EXPECT_TRUE(means("..\\Rock\\a.mp3", "Rock/a.mp3"));
    EXPECT_TRUE(means("odd\\name.mp3", "lists/odd\\name.mp3"));
    EXPECT_TRUE(means("caf\xE9.mp3", "lists/café.mp3"));
    EXPECT_TRUE(means("caf\xE9.mp3", "lists/caf\xE9.mp3"));
}

} // namespace songsweep::test
