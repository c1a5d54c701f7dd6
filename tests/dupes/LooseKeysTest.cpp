// SPDX-License-Identifier: MIT
#include "dupes/LooseKeys.h"

#include "library/TrackRecord.h"

#include <gtest/gtest.h>

#include <string>

namespace songsweep {
namespace {

constexpr SearchParameters byNameAndTime{.issamename = true, .issametime = true};
constexpr SearchParameters byArtist{.issameartist = true};

std::string key(const TrackRecord& record, const SearchParameters& parameters) {
    LooseKeys keys(parameters);
    std::string made;
    keys.append(made, record);
    return made;
}

std::string nameKey(const char* name, const SearchParameters& parameters = byNameAndTime) {
    return key({.name = name}, parameters);
}

std::string artistKey(const char* artist) { return key({.artist = artist}, byArtist); }

TEST(LooseKeys, ATextOfPunctuationAloneKeepsItsExactKey) {
    EXPECT_NE(nameKey("???"), nameKey("!!!"));
    EXPECT_NE(nameKey("( )"), nameKey(""));
    EXPECT_EQ(nameKey("..."), nameKey("..."));
}

TEST(LooseKeys, TheArticleOfAnArtistDoesNotCount) {
    EXPECT_EQ(artistKey("The Beatles"), artistKey("Beatles"));
    EXPECT_EQ(artistKey("Beatles, The"), artistKey("beatles"));
    EXPECT_NE(artistKey("Theatre"), artistKey("atre"));
    EXPECT_NE(artistKey("The"), artistKey(""));
    EXPECT_NE(artistKey("The The"), artistKey("A"));
    EXPECT_NE(nameKey("The Song"), nameKey("Song"));
}

TEST(LooseKeys, AGuestCountsUnlessTheTimeIsCompared) {
    EXPECT_EQ(nameKey("Song (feat. X)"), nameKey("Song"));
    EXPECT_NE(nameKey("Song (feat. X)", {.issamename = true}), nameKey("Song", {.issamename = true}));
    EXPECT_EQ(key({.artist = "A feat. B"}, {.issameartist = true, .issametime = true}),
              key({.artist = "A"}, {.issameartist = true, .issametime = true}));
}

TEST(LooseKeys, RemasteringDoesNotCountWhateverIsCompared) {
    EXPECT_EQ(nameKey("Song - Remaster", {.issamename = true}), nameKey("Song", {.issamename = true}));
    EXPECT_EQ(key({.album = "Album (Remastered 2009)"}, {.issamealbum = true}),
              key({.album = "Album"}, {.issamealbum = true}));
}

TEST(LooseKeys, OnlyWhatIsComparedIsInTheKey) {
    const TrackRecord a{.name = "n", .artist = "a", .album = "x"};
    const TrackRecord b{.name = "n", .artist = "b", .album = "x"};
    EXPECT_EQ(key(a, {.issamename = true, .issamealbum = true}),
              key(b, {.issamename = true, .issamealbum = true}));
    EXPECT_NE(key(a, byArtist), key(b, byArtist));
}

TEST(LooseKeys, WhereOneTextEndsTheNextBegins) {
    const SearchParameters both{.issamename = true, .issameartist = true};
    EXPECT_NE(key({.name = "ab", .artist = "c"}, both), key({.name = "a", .artist = "bc"}, both));
}

TEST(LooseKeys, ARepeatedArtistHasTheSameKeyAsAnewOne) {
    LooseKeys keys({.issameartist = true, .issamealbum = true});
    const char* const artist = "The Artist";
    std::string first;
    std::string second;
    std::string other;
    keys.append(first, {.artist = artist, .album = artist});
    keys.append(second, {.artist = artist, .album = artist});
    keys.append(other, {.artist = "B", .album = artist});
    EXPECT_EQ(first, second);
    EXPECT_EQ(first, std::string("artist\0the artist\0", 18));
    EXPECT_EQ(other, std::string("b\0the artist\0", 13));
}

TEST(LooseKeys, ANumberLeadsWhereAWordFollows) {
    LooseKeys keys(byNameAndTime);
    int number = -1;
    EXPECT_EQ(keys.leadingNumber(nameKey("01 - Song"), number), 3U);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(keys.leadingNumber(nameKey("1999"), number), 0U);
    EXPECT_EQ(keys.leadingNumber(nameKey("12345 Song"), number), 0U);
    EXPECT_EQ(keys.leadingNumber(nameKey("Song 2"), number), 0U);
    EXPECT_EQ(LooseKeys(byArtist).leadingNumber(artistKey("10 Years"), number), 0U);
}

} // namespace
} // namespace songsweep
