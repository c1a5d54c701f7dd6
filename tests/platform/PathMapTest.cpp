// SPDX-License-Identifier: MIT
#include "platform/PathMap.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

PathMap mapOf(std::initializer_list<std::pair<const char*, const char*>> rules) {
    PathMap map;
    for (const auto& [from, to] : rules)
        map.add(from, to);
    return map;
}

TEST(PathMap, LeavesAPathThatNoRuleCovers) {
    EXPECT_EQ(PathMap().map("/Users/ann/a.mp3"), "/Users/ann/a.mp3");
    EXPECT_EQ(mapOf({{"/Volumes", "/media"}}).map("/Users/ann/a.mp3"), "/Users/ann/a.mp3");
}

TEST(PathMap, ReplacesTheBeginning) {
    const PathMap map = mapOf({{"/C:/Music", "/media/music"}});
    EXPECT_EQ(map.map("/C:/Music/Abba/SOS.mp3"), "/media/music/Abba/SOS.mp3");
    EXPECT_EQ(map.map("/C:/Music"), "/media/music");
}

TEST(PathMap, AppliesAtAComponentsEndOnly) {
    const PathMap map = mapOf({{"/C:/Music", "/media/music"}});
    EXPECT_EQ(map.map("/C:/Music2/a.mp3"), "/C:/Music2/a.mp3");
    EXPECT_EQ(map.map("/C:/Musi"), "/C:/Musi");
}

TEST(PathMap, PrefersTheLongestRuleWhateverTheirOrder) {
    const PathMap shortFirst = mapOf({{"/a", "/1"}, {"/a/b", "/2"}});
    const PathMap longFirst = mapOf({{"/a/b", "/2"}, {"/a", "/1"}});
    for (const PathMap* map : {&shortFirst, &longFirst}) {
        EXPECT_EQ(map->map("/a/b/c"), "/2/c");
        EXPECT_EQ(map->map("/a/bc"), "/1/bc");
    }
}

TEST(PathMap, PrefersTheLaterOfTwoRulesForOneBeginning) {
    EXPECT_EQ(mapOf({{"/a", "/1"}, {"/a/", "/2"}}).map("/a/b"), "/2/b");
}

TEST(PathMap, DropsTrailingSlashesOfEitherSide) {
    EXPECT_EQ(mapOf({{"/a/", "/b/"}}).map("/a/c"), "/b/c");
    EXPECT_EQ(mapOf({{"/a//", "/b//"}}).map("/a/c"), "/b/c");
    EXPECT_EQ(mapOf({{"/", "//"}}).map("/a"), "/a");
}

TEST(PathMap, TakesAPathOfWindowsHoweverItIsSpelled) {
    for (const char* from : {"C:/Music", "C:\\Music", "/C:/Music", "/C:\\Music", "C:\\Music\\", "C:/Music/"})
        EXPECT_EQ(mapOf({{from, "/media/music"}}).map("/C:/Music/Abba/SOS.mp3"), "/media/music/Abba/SOS.mp3")
            << from;
    for (const char* drive : {"C:", "C:/", "C:\\", "/C:"})
        EXPECT_EQ(mapOf({{drive, "/mnt"}}).map("/C:/Music/a.mp3"), "/mnt/Music/a.mp3") << drive;
    EXPECT_EQ(mapOf({{"\\\\server\\music", "/mnt"}}).map("//server/music/a.mp3"), "/mnt/a.mp3");
}

TEST(PathMap, LeavesBackslashesOfOtherPathsAlone) {
    EXPECT_EQ(mapOf({{"/home/a\\b", "/mnt"}}).map("/home/a\\b/c"), "/mnt/c");
    EXPECT_EQ(mapOf({{"/Users/c:", "/mnt"}}).map("/Users/c:/x"), "/mnt/x");
}

TEST(PathMap, MapsTheRoot) {
    EXPECT_EQ(mapOf({{"/", "/mnt/mac"}}).map("/Users/ann"), "/mnt/mac/Users/ann");
    EXPECT_EQ(mapOf({{"/mnt/mac", "/"}}).map("/mnt/mac/Users/ann"), "/Users/ann");
    EXPECT_EQ(mapOf({{"/mnt/mac", "/"}}).map("/mnt/mac"), "/");
}

TEST(PathMap, DoesNotMapWhatItHasMapped) {
    EXPECT_EQ(mapOf({{"/a", "/b"}, {"/b", "/c"}}).map("/a/x"), "/b/x");
}

} // namespace
} // namespace songsweep
