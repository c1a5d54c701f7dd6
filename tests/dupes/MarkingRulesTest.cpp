// SPDX-License-Identifier: MIT
#include "dupes/MarkingRules.h"

#include "dupes/MarkRows.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace songsweep {
namespace {

using test::MarkRows;

constexpr bool exceptOne = true;

/// One group of the records in turn.
MarkRows group(std::initializer_list<TrackRecord> records) {
    MarkRows rows;
    for (const TrackRecord& record : records)
        rows.add(1, record);
    return rows;
}

MarkRows bitRates() { return group({{.bitrate = "128"}, {.bitrate = "320"}, {.bitrate = "320"}}); }

std::string marks(const MarkRows& rows, MarkType type, bool exceptOneCopy = false) {
    markItems(rows.rows(), type, exceptOneCopy);
    return rows.checks();
}

TEST(MarkingRulesTest, TheHighestBitRateLeavesEqualCopiesUnchecked) {
    EXPECT_EQ(marks(bitRates(), MarkType::highestBitrate), "x--");
}

TEST(MarkingRulesTest, TheHighestBitRateExceptOneKeepsTheFirstOfEqualCopies) {
    EXPECT_EQ(marks(bitRates(), MarkType::highestBitrate, exceptOne), "x-x");
}

TEST(MarkingRulesTest, TheLowestBitRateExceptOneKeepsTheLowest) {
    EXPECT_EQ(marks(bitRates(), MarkType::lowestBitrate, exceptOne), "-xx");
}

TEST(MarkingRulesTest, TheBestOfTheLiveCopiesIsKeptWhereTheBestOfAllIsMissing) {
    const MarkRows rows = group({{.bitrate = "128"}, {.bitrate = "320", .isdead = true}, {.bitrate = "256"}});
    EXPECT_EQ(marks(rows, MarkType::highestBitrate), "xx-");
    EXPECT_EQ(marks(rows, MarkType::highestBitrate, exceptOne), "xx-");
}

TEST(MarkingRulesTest, AGroupOfMissingFilesKeepsItsFirstTrackWithExceptOne) {
    const MarkRows rows = group({{.isdead = true}, {.isdead = true}, {.isdead = true}});
    EXPECT_EQ(marks(rows, MarkType::highestBitrate, exceptOne), "-xx");
    EXPECT_EQ(marks(rows, MarkType::highestBitrate), "xxx");
}

TEST(MarkingRulesTest, WithArtworkChecksAllOfAGroupWithoutAny) {
    const MarkRows rows = group({{}, {}, {}});
    EXPECT_EQ(marks(rows, MarkType::withArtwork), "xxx");
    EXPECT_EQ(marks(rows, MarkType::withArtwork, exceptOne), "-xx");
}

TEST(MarkingRulesTest, TheLastCopyWithArtworkIsTheKeptOne) {
    const MarkRows rows = group({{.hasartwork = true}, {.hasartwork = true}, {}});
    EXPECT_EQ(marks(rows, MarkType::withArtwork, exceptOne), "x-x");
    EXPECT_EQ(marks(rows, MarkType::withoutArtwork, exceptOne), "xx-");
    EXPECT_EQ(marks(rows, MarkType::withoutArtwork), "xx-");
}

TEST(MarkingRulesTest, TheKindRuleKeepsTheLastTrackOfAnotherKind) {
    const MarkRows rows = group({{.location = "/a.mp3"}, {.location = "/b.m4a"}, {.location = "/c.M4A"}});
    markItemsByKind(rows.rows(), "MP3", exceptOne);
    EXPECT_EQ(rows.checks(), "xx-");
    markItemsByKind(rows.rows(), "MP3", !exceptOne);
    EXPECT_EQ(rows.checks(), "x--");
}

TEST(MarkingRulesTest, AKindInLowerCaseMatchesNothing) {
    const MarkRows rows = group({{.location = "/a.mp3"}, {.location = "/b.mp3"}});
    markItemsByKind(rows.rows(), "mp3", !exceptOne);
    EXPECT_EQ(rows.checks(), "--");
}

TEST(MarkingRulesTest, AnEmptyKindChecksTheFilesWithoutExtension) {
    const MarkRows rows = group({{.location = "/a"}, {.location = "/b.mp3"}, {.location = "/c.d/e"}});
    markItemsByKind(rows.rows(), "", !exceptOne);
    EXPECT_EQ(rows.checks(), "x-x");
}

TEST(MarkingRulesTest, TheFolderRuleTakesNoFolderOfALongerName) {
    const MarkRows rows = group({{.location = "/Music/Old/x.mp3"}, {.location = "/Music/Older/y.mp3"}});
    markItemsByFolder(rows.rows(), "/Music/Old", !exceptOne);
    EXPECT_EQ(rows.checks(), "x-");
    EXPECT_TRUE(isSubfolder("/Music/Old", "/Music/Old/x.mp3"));
    EXPECT_FALSE(isSubfolder("/Music/Old", "/Music/Older/y.mp3"));
}

TEST(MarkingRulesTest, AFolderHoldsItselfAndMindsTheCase) {
    EXPECT_TRUE(isSubfolder("/Music/Old", "/Music/Old"));
    EXPECT_FALSE(isSubfolder("/Music/Old", "/music/old/x.mp3"));
}

TEST(MarkingRulesTest, AFolderThatEndsWithASlashHoldsNoFile) {
    EXPECT_FALSE(isSubfolder("/", "/x.mp3"));
    EXPECT_FALSE(isSubfolder("/", "/Music/x.mp3"));
    EXPECT_FALSE(isSubfolder("/Music/", "/Music/x.mp3"));
    EXPECT_TRUE(isSubfolder("/", "/"));
}

TEST(MarkingRulesTest, AnEmptyFolderHoldsOnlyTheEmptyPath) {
    EXPECT_FALSE(isSubfolder("", "/Music/x.mp3"));
    EXPECT_TRUE(isSubfolder("", ""));
}

TEST(MarkingRulesTest, TheEarliestAddedLeavesATrackWithoutADateBeforeADatedOne) {
    const MarkRows rows = group({{.dateaddedv = 0}, {.dateaddedv = 1237043366}});
    EXPECT_EQ(marks(rows, MarkType::earliestAdded), "--");
    EXPECT_EQ(marks(rows, MarkType::earliestAdded, exceptOne), "--");
}

TEST(MarkingRulesTest, TheLatestAddedChecksATrackWithoutADate) {
    const MarkRows rows = group({{.dateaddedv = 0}, {.dateaddedv = 1237043366}});
    EXPECT_EQ(marks(rows, MarkType::latestAdded), "x-");
    EXPECT_EQ(marks(rows, MarkType::latestAdded, exceptOne), "x-");
}

TEST(MarkingRulesTest, AGroupWithoutALoserLosesItsEarlierMarks) {
    const MarkRows rows = group({{.timev = 200, .checkbox = true}, {.timev = 200, .checkbox = true}});
    EXPECT_EQ(marks(rows, MarkType::longest), "--");
}

TEST(MarkingRulesTest, EachValueRuleReadsItsOwnField) {
    const MarkRows rows = group({{.size = "10", .playcount = "5", .dateaddedv = 5, .timev = 1, .rating = 2},
                                 {.size = "9", .playcount = "6", .dateaddedv = 4, .timev = 2, .rating = 1}});
    EXPECT_EQ(marks(rows, MarkType::longest), "x-");
    EXPECT_EQ(marks(rows, MarkType::shortest), "-x");
    EXPECT_EQ(marks(rows, MarkType::largest), "-x");
    EXPECT_EQ(marks(rows, MarkType::smallest), "x-");
    EXPECT_EQ(marks(rows, MarkType::earliestAdded), "x-");
    EXPECT_EQ(marks(rows, MarkType::latestAdded), "-x");
    EXPECT_EQ(marks(rows, MarkType::highestRating), "-x");
    EXPECT_EQ(marks(rows, MarkType::lowestRating), "x-");
    EXPECT_EQ(marks(rows, MarkType::mostPlayed), "x-");
    EXPECT_EQ(marks(rows, MarkType::leastPlayed), "-x");
}

TEST(MarkingRulesTest, ASizeBeyond32BitsCountsAsTheLargestOfThem) {
    const MarkRows rows = group({{.size = "4294967296"}, {.size = "2147483647"}});
    EXPECT_EQ(marks(rows, MarkType::largest), "--");
}

TEST(MarkingRulesTest, AnUnknownMarkTypeChecksOnlyMissingFiles) {
    const MarkRows rows = group({{.checkbox = true}, {.isdead = true}, {}});
    EXPECT_EQ(marks(rows, MarkType::none), "-x-");
    EXPECT_EQ(marks(rows, static_cast<MarkType>(14)), "-x-");
    EXPECT_EQ(marks(rows, MarkType::kind), "-x-");
    EXPECT_EQ(marks(rows, MarkType::folder, exceptOne), "-x-");
}

TEST(MarkingRulesTest, AGroupThatWasSplitCountsAsTwo) {
    MarkRows rows;
    rows.add(1, {.bitrate = "128"});
    rows.add(2, {.bitrate = "64"});
    rows.add(1, {.bitrate = "320"});
    EXPECT_EQ(marks(rows, MarkType::highestBitrate, exceptOne), "---");
}

TEST(MarkingRulesTest, AnEmptyListStaysEmpty) {
    const MarkRows rows;
    EXPECT_EQ(marks(rows, MarkType::highestBitrate, exceptOne), "");
}

TEST(MarkingRulesTest, LookingAtTheEffectMarksNothing) {
    const MarkRows rows = bitRates();
    const MarkChoice choice = {MarkType::highestBitrate, exceptOne, ""};
    EXPECT_EQ(markEffect(rows.rows(), choice).marked, 2);
    EXPECT_FALSE(markEffect(rows.rows(), choice).inForce);
    EXPECT_EQ(rows.checks(), "---");
    applyMarkChoice(rows.rows(), choice);
    EXPECT_EQ(markEffect(rows.rows(), choice).marked, 2);
    EXPECT_TRUE(markEffect(rows.rows(), choice).inForce);
}

TEST(MarkingRulesTest, OnlyAKindOrAFolderCanMatchNoRow) {
    MarkRows rows;
    rows.add(1, {.location = rows.text("/music/a.mp3")});
    EXPECT_TRUE(matchesRow(rows.rows(), {MarkType::kind, exceptOne, "MP3"}));
    EXPECT_FALSE(matchesRow(rows.rows(), {MarkType::kind, exceptOne, "M4A"}));
    EXPECT_TRUE(matchesRow(rows.rows(), {MarkType::folder, exceptOne, "/music"}));
    EXPECT_FALSE(matchesRow(rows.rows(), {MarkType::folder, exceptOne, "/sounds"}));
    EXPECT_TRUE(matchesRow(rows.rows(), {MarkType::lowestBitrate, exceptOne, ""}));
}

} // namespace
} // namespace songsweep
