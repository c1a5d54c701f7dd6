// SPDX-License-Identifier: MIT
#include "library/LocationUrl.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(LocationUrl, DropsTheSchemeAndTheHost) {
    EXPECT_EQ(pathOfUrl("file://localhost/Users/ann/a.mp3"), "/Users/ann/a.mp3");
    EXPECT_EQ(pathOfUrl("file:///Users/ann/a.mp3"), "/Users/ann/a.mp3");
    EXPECT_EQ(pathOfUrl("file:/Users/ann/a.mp3"), "/Users/ann/a.mp3");
    EXPECT_EQ(pathOfUrl("http://host:8000/radio.mp3"), "/radio.mp3");
    EXPECT_EQ(pathOfUrl("/Users/ann/a.mp3"), "/Users/ann/a.mp3");
}

TEST(LocationUrl, KeepsDrivesAndSharesOfOtherSystems) {
    EXPECT_EQ(pathOfUrl("file://localhost/C:/Music/a.mp3"), "/C:/Music/a.mp3");
    EXPECT_EQ(pathOfUrl("file://localhost//server/share/a.mp3"), "//server/share/a.mp3");
}

TEST(LocationUrl, DecodesPercentEscapes) {
    EXPECT_EQ(pathOfUrl("file://localhost/a%20b%2fc%25.mp3"), "/a b/c%.mp3");
    EXPECT_EQ(pathOfUrl("file://localhost/Bj%C3%B6rk/%E2%82%AC%F0%9F%8E%B5"), "/Björk/€🎵");
    EXPECT_EQ(pathOfUrl("file://localhost/a%3Fb%23c%3Bd"), "/a?b#c;d");
}

TEST(LocationUrl, LeavesOutQueryAndFragment) {
    EXPECT_EQ(pathOfUrl("http://host/a?b=c/d#e"), "/a");
    EXPECT_EQ(pathOfUrl("file:///a#b?c"), "/a");
    EXPECT_EQ(pathOfUrl("file:///a;b"), "/a;b");
}

TEST(LocationUrl, StripsOneTrailingSlashButNotOfTheRoot) {
    EXPECT_EQ(pathOfUrl("file://localhost/Music/"), "/Music");
    EXPECT_EQ(pathOfUrl("file://localhost/Music//"), "/Music/");
    EXPECT_EQ(pathOfUrl("file://localhost/"), "/");
}

TEST(LocationUrl, HasNoPathForATextThatIsNoUrl) {
    for (const char* text : {"file://localhost/a b", "file://localhost/ä", "file://localhost/a\"b",
                             "file://localhost/a<b>", "file://localhost/a\\b", "file://localhost/a^b",
                             "file://localhost/{a}", "file://localhost/a|b", "file://localhost/a`b",
                             "file://localhost/a\nb", "file://localhost/a#b#c", "file://localhost/a?b c"})
        EXPECT_FALSE(pathOfUrl(text).has_value()) << text;
}

TEST(LocationUrl, HasNoPathForABrokenEscape) {
    for (const char* text : {"file://localhost/a%", "file://localhost/a%2", "file://localhost/a%zz",
                             "file://localhost/a%2gb", "file://localhost/a?%4", "file://localhost/a#%4"})
        EXPECT_FALSE(pathOfUrl(text).has_value()) << text;
}

TEST(LocationUrl, HasNoPathForEscapesThatAreNotUtf8) {
    for (const char* text : {"file://localhost/caf%E9", "file://localhost/%C3", "file://localhost/%ED%A0%80",
                             "file://localhost/%C0%AF", "file://localhost/a%00b"})
        EXPECT_FALSE(pathOfUrl(text).has_value()) << text;
}

TEST(LocationUrl, HasNoPathForAnOpaqueUrl) {
    EXPECT_FALSE(pathOfUrl("mailto:ann@example.org").has_value());
    EXPECT_FALSE(pathOfUrl("").has_value());
}

} // namespace
} // namespace songsweep
