// SPDX-License-Identifier: MIT
#include "merge/MergePlan.h"

#include "merge/MergeTexts.h"
#include "merge/MergeWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Property = MergedProperty;

constexpr MergeChoice history{.places = false, .history = true, .fillIns = false};
constexpr MergeChoice fillIns{.places = false, .history = false, .fillIns = true};

CopyFacts factsOf(const std::string& values) {
    return CopyFacts::of(*EntryValues::parse("<key>1</key><dict>" + values + "</dict>", {}));
}

TEST(MergePlan, PlaysAndSkipsAreSummedUp) {
    const CopyFacts kept = factsOf("<key>Play Count</key><integer>5</integer>");
    const CopyFacts first = factsOf("<key>Play Count</key><integer>20</integer>");
    const CopyFacts second =
        factsOf("<key>Play Count</key><integer>6</integer><key>Skip Count</key><integer>2</integer>");
    EXPECT_THAT(mergedValues(kept, {first, second}, history),
                ElementsAre(MergedValue{Property::plays, 31, {}}, MergedValue{Property::skips, 2, {}}));
    CopyFacts many;
    many.plays = std::numeric_limits<std::int64_t>::max();
    EXPECT_THAT(mergedValues(kept, {many, many}, history),
                ElementsAre(MergedValue{Property::plays, 2147483647, {}}));
    EXPECT_THAT(mergedValues(kept, {factsOf("")}, history), IsEmpty());
}

TEST(MergePlan, TheHighestRatingCountsAndAComputedOneIsNone) {
    const std::string computed = "<key>Rating</key><integer>100</integer><key>Rating Computed</key><true/>";
    const std::string four = "<key>Rating</key><integer>80</integer>";
    const std::string two = "<key>Rating</key><integer>40</integer>";
    EXPECT_THAT(mergedValues(factsOf(computed), {factsOf(two), factsOf(four)}, history),
                ElementsAre(MergedValue{Property::rating, 0, 1}));
    EXPECT_THAT(mergedValues(factsOf(two), {factsOf(computed)}, history), IsEmpty());
    const std::string album = "<key>Album Rating</key><integer>60</integer>";
    EXPECT_THAT(
        mergedValues(factsOf(album + "<key>Album Rating Computed</key><true/>"), {factsOf(album)}, history),
        ElementsAre(MergedValue{Property::albumRating, 0, 0}));
}

TEST(MergePlan, LastPlayedIsTheLatestAndAddedTheEarliest) {
    const auto dates = [](const std::string& day) {
        return factsOf("<key>Play Date UTC</key><date>" + day + "</date><key>Skip Date</key><date>" + day +
                       "</date><key>Date Added</key><date>" + day + "</date>");
    };
    const CopyFacts early = dates("2001-01-01T00:00:00Z");
    const CopyFacts middle = dates("2002-01-01T00:00:00Z");
    const CopyFacts late = dates("2003-01-01T00:00:00Z");
    EXPECT_THAT(mergedValues(middle, {late, early}, history),
                ElementsAre(MergedValue{Property::lastPlayed, 0, 0}, MergedValue{Property::lastSkipped, 0, 0},
                            MergedValue{Property::added, 0, 1}));
    EXPECT_THAT(mergedValues(middle, {factsOf("")}, history), IsEmpty());
    EXPECT_THAT(mergedValues(factsOf(""), {middle}, history),
                ElementsAre(MergedValue{Property::lastPlayed, 0, 0}, MergedValue{Property::lastSkipped, 0, 0},
                            MergedValue{Property::added, 0, 0}));
}

TEST(MergePlan, LovedAndEnabledIfAnyWas) {
    const CopyFacts loved = factsOf("<key>Loved</key><true/>");
    const CopyFacts disabled = factsOf("<key>Disabled</key><true/>");
    EXPECT_THAT(mergedValues(disabled, {disabled, loved}, history),
                ElementsAre(MergedValue{Property::loved, 0, 1}, MergedValue{Property::enabled, 0, 1}));
    EXPECT_THAT(mergedValues(loved, {disabled}, history), IsEmpty());
}

TEST(MergePlan, FillsInWhatIsLackingFromTheFirstCopyThatHasIt) {
    const CopyFacts kept =
        factsOf("<key>Genre</key><string>Rock</string><key>Year</key><integer>0</integer>");
    const CopyFacts odd = factsOf("<key>Year</key><integer>01999</integer>");
    const CopyFacts other =
        factsOf("<key>Genre</key><string>Pop</string><key>Year</key><integer>1999</integer>"
                "<key>Comments</key><string>x</string>");
    EXPECT_THAT(mergedValues(kept, {odd, other}, fillIns),
                ElementsAre(MergedValue{Property::year, 0, 1}, MergedValue{Property::comment, 0, 1}));
    EXPECT_THAT(mergedValues(kept, {odd, other}, history), IsEmpty());
}

TEST(MergePlan, CountsThePlacesOfASongInAPlaylist) {
    EXPECT_EQ(mergedPlaces(3, {1, 2, 0, 1}, 2), (MergedPlaces{3, {}, {1, 1}, 1}));
    EXPECT_EQ(mergedPlaces(3, {0, 1}, 1), (MergedPlaces{3, {}, {0}, 0}));
}

TEST(MergePlan, IsTextsOfOneTryBlockASong) {
    SongMerge song;
    song.copies.kept.pid = "K\"1";
    song.copies.removed = {{nullptr, "R1", 0}, {nullptr, "R2", 1}};
    song.values = {{Property::plays, 31, {}}, {Property::lastPlayed, 0, 1}};
    song.places = {{3, {}, {1, 0}, 1}};
    EXPECT_EQ(mergeTexts::mergeSong(song),
              "tell application \"iTunes\" \ntry \n"
              "set kept to (first track of playlist 1 whose persistent ID is \"K\\\"1\") \n"
              "set other2 to (first track of playlist 1 whose persistent ID is \"R2\") \n"
              "set played count of kept to 31 \n"
              "set played date of kept to played date of other2 \n"
              "delete (last track of playlist 3 whose persistent ID is \"K\\\"1\") \n"
              "duplicate kept to (first track of playlist 3 whose persistent ID is \"R1\") \n"
              "return \"\" \non error reason \nreturn reason \nend try \nend tell");
}

TEST(MergePlan, LeavesTheDayOfAdditionToTheSystemsITunes) {
    const CopyFacts kept = factsOf("<key>Date Added</key><date>2012-01-01T00:00:00Z</date>");
    const CopyFacts older = factsOf("<key>Date Added</key><date>2010-01-01T00:00:00Z</date>");
    EXPECT_THAT(mergedValues(kept, {older}, history), ElementsAre(MergedValue{Property::added, 0, 0}));
    EXPECT_THAT(mergedValues(kept, {older}, history, MergeRoad::iTunes), IsEmpty());
}

TEST(MergePlan, HasTheSystemsITunesAddUpAndPutTheSongAtTheEndOfItsPlaylists) {
    SongMerge song;
    song.copies.kept.pid = "K1";
    song.copies.removed = {{nullptr, "R1", 0}, {nullptr, "R2", 1}};
    song.removed.resize(2);
    song.values = {{Property::plays, 31, {}}, {Property::rating, 0, 1}};
    song.places = {{3, "P3", {1, 1}, 1}};
    EXPECT_EQ(mergeTexts::mergeSong(song, MergeRoad::iTunes),
              "tell application \"iTunes\" \ntry \n"
              "set kept to (first track of playlist 1 whose persistent ID is \"K1\") \n"
              "set other1 to (first track of playlist 1 whose persistent ID is \"R1\") \n"
              "set other2 to (first track of playlist 1 whose persistent ID is \"R2\") \n"
              "set played count of kept to (played count of kept) + (played count of other1) + "
              "(played count of other2) \n"
              "set rating of kept to rating of other2 \n"
              "set place to (first user playlist whose persistent ID is \"P3\") \n"
              "delete (last track of place whose persistent ID is \"K1\") \n"
              "duplicate kept to place \n"
              "duplicate kept to place \n"
              "return \"\" \non error reason \nreturn reason \nend try \nend tell");
}

TEST(MergePlan, IsToldInWords) {
    SongMerge song;
    song.copies.kept.pid = "K";
    song.copies.removed = {{nullptr, "R1", 0}, {nullptr, "R2", 1}};
    song.removed = {factsOf("<key>Play Count</key><integer>1</integer>"), factsOf("")};
    song.values = {{Property::plays, 31, {}}, {Property::rating, 0, 0}};
    song.places = {{3, {}, {1, 1}, 1}, {4, {}, {1, 0}, 0}};
    EXPECT_EQ(wordsOf(mergedCopy(song, 0)), "2 places, 1 play, rating");
    EXPECT_EQ(wordsOf(mergedCopy(song, 1)), "1 place");
    const MergeCounts counts{12, 5, 31, 4, 2, 2, 1};
    EXPECT_EQ(wordsOf(counts), "12 places in 5 playlists, 31 plays, 4 ratings, 2 values");
    EXPECT_EQ(leftWords(counts),
              "2 songs keep two copies or more: not merged; 1 song has a copy that cannot be "
              "told from another: not merged");
    EXPECT_EQ(wordsOf(MergeCounts()) + leftWords({}), "");
}

} // namespace
} // namespace songsweep
