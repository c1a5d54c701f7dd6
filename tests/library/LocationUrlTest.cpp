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

TEST(LocationUrl, KeepsBytesThatAreNotUtf8) {
    EXPECT_EQ(pathOfUrl("file://localhost/caf%E9"), "/caf\xe9");
    EXPECT_EQ(pathOfUrl("file://localhost/%C3/%ED%A0%80%C0%AF.mp3"), "/\xc3/\xed\xa0\x80\xc0\xaf.mp3");
}

TEST(LocationUrl, HasNoPathForAZeroByte) { EXPECT_FALSE(pathOfUrl("file://localhost/a%00b").has_value()); }

TEST(LocationUrl, HasNoPathForAnOpaqueUrl) {
    EXPECT_FALSE(pathOfUrl("mailto:ann@example.org").has_value());
    EXPECT_FALSE(pathOfUrl("").has_value());
}

TEST(LocationUrl, AFileHasAUrlOfTheFileScheme) {
    EXPECT_EQ(pathOfFileUrl("file://localhost/a%20b.mp3"), "/a b.mp3");
    EXPECT_EQ(pathOfFileUrl("FILE:///a.mp3"), "/a.mp3");
    for (const char* text : {"http://host/home/ann/x.mp3", "daap://host/a b.mp3", "files:///a.mp3", "/a.mp3",
                             "not a url", "file:", "file://host", ""})
        EXPECT_FALSE(pathOfFileUrl(text).has_value()) << text;
}

TEST(LocationUrl, AFileThatIsNotQuiteAUrlKeepsItsPath) {
    EXPECT_EQ(pathOfFileUrl("file://localhost/a b%20c.mp3"), "/a b c.mp3");
    EXPECT_EQ(pathOfFileUrl("file:///Björk/\"x\".mp3"), "/Björk/\"x\".mp3");
    EXPECT_EQ(pathOfFileUrl("file:///100%.mp3"), "/100%.mp3");
    EXPECT_EQ(pathOfFileUrl("file:///a b#1?.mp3"), "/a b#1?.mp3");
    EXPECT_EQ(pathOfFileUrl("file:///a b/"), "/a b");
    EXPECT_EQ(pathOfFileUrl("file:///a#b"), "/a");
    EXPECT_FALSE(pathOfFileUrl("file:///a b%00c").has_value());
}

} // namespace
} // namespace songsweep
