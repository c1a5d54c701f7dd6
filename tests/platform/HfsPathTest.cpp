// SPDX-License-Identifier: MIT
#include "platform/HfsPath.h"

#include <gtest/gtest.h>

#include <random>

namespace songsweep {
namespace {

TEST(HfsPath, StartsWithTheVolumeAndSeparatesByColons) {
    EXPECT_EQ(hfsPath("/Users/ann/Music/a.mp3"), "Macintosh HD:Users:ann:Music:a.mp3");
}

TEST(HfsPath, WritesAColonInANameAsASlash) {
    EXPECT_EQ(hfsPath("/Users/ann/a:b.mp3"), "Macintosh HD:Users:ann:a/b.mp3");
    EXPECT_EQ(posixPath("Macintosh HD:Users:ann:a/b.mp3"), "/Users/ann/a:b.mp3");
}

TEST(HfsPath, HasNoneForARelativeOrEmptyPath) {
    EXPECT_EQ(hfsPath(""), std::nullopt);
    EXPECT_EQ(hfsPath("a.mp3"), std::nullopt);
}

TEST(HfsPath, KnowsItsOwnVolumeOnly) {
    EXPECT_EQ(posixPath("Backup:Users:ann"), std::nullopt);
    EXPECT_EQ(posixPath("Macintosh HD 2:Users:ann"), std::nullopt);
    EXPECT_EQ(posixPath("Macintosh HD"), std::nullopt);
    EXPECT_EQ(posixPath(""), std::nullopt);
    EXPECT_EQ(posixPath("/Users/ann"), std::nullopt);
}

TEST(HfsPath, KeepsEveryNameOnTheWayThereAndBack) {
    const std::vector<std::string> paths = {
        "/",           "//",           "/a/",         "/a//b",     "/ leading",     "/trailing ", "/it's",
        "/\"quoted\"", "/back\\slash", "/line\nfeed", "/return\r", "/Macintosh HD", "/tab\t",     "/::",
        "/a:/b",       "/caf\u00e9",   "/cafe\u0301", "/\xff\xfe", "/\u65e5本",     "/...",       "/a/../b"};
    for (const std::string& path : paths) {
        const std::optional<std::string> hfs = hfsPath(path);
        ASSERT_TRUE(hfs) << path;
        EXPECT_EQ(posixPath(*hfs), path);
    }
}

TEST(HfsPath, KeepsRandomPathsOnTheWayThereAndBack) {
    std::mt19937 random(7);
    constexpr std::string_view letters = "/:\\\"' \nab\xc3\xa9";
    std::uniform_int_distribution<std::size_t> letter(0, letters.size() - 1);
    for (int round = 0; round < 2000; ++round) {
        std::string path = "/";
        for (std::size_t length = random() % 30; length > 0; --length)
            path += letters[letter(random)];
        ASSERT_EQ(posixPath(hfsPath(path).value_or("")), path);
    }
}

} // namespace
} // namespace songsweep
