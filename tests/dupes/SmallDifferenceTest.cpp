// SPDX-License-Identifier: MIT
#include "dupes/SmallDifference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr SearchParameters all{
    .issamename = true, .issameartist = true, .issamealbum = true, .issametime = true, .issimilar = true};

std::vector<std::string> ofNames(const char* name, const char* other) {
    return smallDifferences({.name = name}, {.name = other}, all);
}

TEST(SmallDifference, NamesTheWordsThatAreMoreOrLess) {
    EXPECT_THAT(ofNames("Umbrella (feat. Rihanna)", "Umbrella"), ElementsAre("name differs: feat. Rihanna"));
    EXPECT_THAT(ofNames("Umbrella", "Umbrella (feat. Rihanna)"),
                ElementsAre("name differs: without feat. Rihanna"));
    EXPECT_THAT(ofNames("01 - Song", "Song"), ElementsAre("name differs: 01"));
    EXPECT_THAT(ofNames("Song - Remastered 2009 (Live)", "song (live)"),
                ElementsAre("name differs: Remastered 2009"));
}

TEST(SmallDifference, NamesBothWhereWordsAreOthers) {
    EXPECT_THAT(ofNames("My Beyonce Song", "My Beyoncé song"),
                ElementsAre("name differs: Beyonce, not Beyoncé"));
}

TEST(SmallDifference, NamesTheWholeTextWherePunctuationAloneDiffers) {
    EXPECT_THAT(ofNames("Song -", "Song"), ElementsAre("name differs: “Song -”"));
    EXPECT_THAT(ofNames("Song ", "Song"), ElementsAre("name differs: “Song ”"));
}

TEST(SmallDifference, TellsOfEachFieldAndOfTheTime) {
    EXPECT_THAT(
        smallDifferences({.name = "a b", .artist = "The X", .album = "Y!", .timev = 181},
                         {.name = "A", .artist = "X", .album = "Y", .timev = 180}, all),
        ElementsAre("name differs: b", "artist differs: The", "album differs: Y!, not Y", "1 s longer"));
    EXPECT_THAT(smallDifferences({.timev = 178}, {.timev = 180}, all), ElementsAre("2 s shorter"));
}

TEST(SmallDifference, WhatIsNotComparedDoesNotDiffer) {
    EXPECT_THAT(smallDifferences({.name = "a", .artist = "x", .timev = 1}, {.name = "A", .artist = "y"},
                                 {.issamename = true, .issimilar = true}),
                IsEmpty());
}

TEST(SmallDifference, EachCopyIsComparedWithThePlainestOfItsGroup) {
    TrackRecord guest{.name = "Song (feat. X)", .timev = 180, .gid = 1};
    TrackRecord plain{.name = "Song", .timev = 181, .gid = 1};
    TrackRecord late{.name = "Song", .timev = 182, .gid = 1};
    TrackRecord other{.name = "Other", .gid = 2};
    TrackRecord same{.name = "OTHER", .gid = 2};
    const auto differences = smallDifferencesOf({&guest, &late, &plain, &other, &same}, all);
    EXPECT_THAT(differences, ElementsAre(ElementsAre("name differs: feat. X", "1 s shorter"),
                                         ElementsAre("1 s longer"), IsEmpty(), IsEmpty(), IsEmpty()));
}

} // namespace
} // namespace songsweep
