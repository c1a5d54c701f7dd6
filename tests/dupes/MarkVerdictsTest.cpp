// SPDX-License-Identifier: MIT
#include "dupes/MarkVerdicts.h"

#include "dupes/MarkRows.h"
#include "library/ValueFormats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>

namespace songsweep {
namespace {

using test::MarkRows;
using testing::ElementsAre;

std::vector<std::string> reasons(std::initializer_list<TrackRecord> records, const MarkChoice& choice) {
    MarkRows rows;
    for (const TrackRecord& record : records)
        rows.add(1, record);
    MarkVerdicts verdicts(rows.rows(), choice);
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < rows.rows().size(); ++row)
        texts.push_back(verdicts.of(row).reason);
    return texts;
}

TEST(MarkVerdictsTest, ALosingValueIsHeldAgainstTheKeptOne) {
    EXPECT_THAT(reasons({{.bitrate = "128"}, {.bitrate = "320"}}, {MarkType::highestBitrate, false, ""}),
                ElementsAre("lower bit rate than the kept copy: 128 against 320", ""));
    EXPECT_THAT(reasons({{.time = "3:07", .timev = 187}, {.time = "3:45", .timev = 225}},
                        {MarkType::shortest, false, ""}),
                ElementsAre("", "longer than the kept copy: 3:45 against 3:07"));
    EXPECT_THAT(reasons({{.playcount = "2"}, {.playcount = "11"}}, {MarkType::mostPlayed, false, ""}),
                ElementsAre("played less than the kept copy: 2 against 11", ""));
}

TEST(MarkVerdictsTest, ACopyWithAnEqualValueGoesBecauseAnotherStays) {
    EXPECT_THAT(reasons({{.bitrate = "320"}, {.bitrate = "320"}}, {MarkType::highestBitrate, true, ""}),
                ElementsAre("", "same bit rate as the kept copy: 320"));
}

TEST(MarkVerdictsTest, AMissingFileIsReasonEnough) {
    EXPECT_THAT(reasons({{.isdead = true}, {}}, {MarkType::longest, false, ""}),
                ElementsAre("file missing", ""));
}

TEST(MarkVerdictsTest, KindFolderAndArtworkSpeakForThemselves) {
    EXPECT_THAT(
        reasons({{.location = "/Music/Old/a.mp3"}, {.location = "/b.m4a"}}, {MarkType::kind, false, "MP3"}),
        ElementsAre("of the kind MP3", ""));
    EXPECT_THAT(reasons({{.location = "/Music/Old/a.mp3"}, {.location = "/b.m4a"}},
                        {MarkType::folder, false, "/Music/Old"}),
                ElementsAre("in the folder /Music/Old", ""));
    EXPECT_THAT(reasons({{}, {.hasartwork = true}, {.hasartwork = true}}, {MarkType::withArtwork, true, ""}),
                ElementsAre("no artwork", "another copy with artwork is kept", ""));
}

TEST(MarkVerdictsTest, ACopyThatDoesNotLoseByKindGoesBecauseAnotherStays) {
    EXPECT_THAT(reasons({{.location = "/a.m4a"}, {.location = "/b.m4a"}}, {MarkType::kind, true, "MP3"}),
                ElementsAre("another copy is kept", ""));
}

TEST(MarkVerdictsTest, SizesThatReadAlikeAreToldInBytes) {
    EXPECT_THAT(reasons({{.size = "5242880"}, {.size = "5242990"}}, {MarkType::largest, false, ""}),
                ElementsAre("smaller than the kept copy: 5242880 bytes against 5242990 bytes", ""));
    EXPECT_THAT(reasons({{.size = "5242880"}, {.size = "10485760"}}, {MarkType::largest, false, ""}),
                ElementsAre("smaller than the kept copy: 5.1 MB against 10.1 MB", ""));
}

TEST(MarkVerdictsTest, ValuesBeyondWhatARuleCountsAreNotCalledTheSame) {
    EXPECT_THAT(
        reasons({{.size = "4294967296"}, {.size = "5294967296"}}, {MarkType::largest, true, ""}),
        ElementsAre("", "no difference that the rule can see: 5294967296 bytes against 4294967296 bytes"));
    EXPECT_THAT(
        reasons({{.playcount = "3000000000"}, {.playcount = "4000000000"}}, {MarkType::mostPlayed, true, ""}),
        ElementsAre("", "no difference that the rule can see: 4000000000 against 3000000000"));
    EXPECT_THAT(reasons({{.bitrate = "320.5"}, {.bitrate = "320"}}, {MarkType::highestBitrate, true, ""}),
                ElementsAre("", "no difference that the rule can see: 320 against 320.5"));
}

TEST(MarkVerdictsTest, ASizeBeyondWhatARuleCountsIsToldInBytes) {
    EXPECT_THAT(reasons({{.size = "5242880"}, {.size = "4294967296"}}, {MarkType::largest, false, ""}),
                ElementsAre("smaller than the kept copy: 5242880 bytes against 4294967296 bytes", ""));
    EXPECT_THAT(reasons({{.size = "4294967296"}, {.size = "4294967296"}}, {MarkType::largest, true, ""}),
                ElementsAre("", "same size as the kept copy: 4294967296 bytes"));
}

TEST(MarkVerdictsTest, DatesInOneMinuteAreToldWithSeconds) {
    const auto dated = [](std::int64_t seconds) {
        TrackRecord record;
        record.hasdate = true;
        record.dateaddedv = seconds;
        return record;
    };
    const auto texts = reasons({dated(1236999600), dated(1236999607)}, {MarkType::earliestAdded, false, ""});
    EXPECT_EQ(texts.back(), "added later than the kept copy: " + dateTimeWithSeconds(1236999607) +
                                " against " + dateTimeWithSeconds(1236999600));
    EXPECT_NE(dateTimeWithSeconds(1236999607), dateTimeWithSeconds(1236999600));
}

TEST(MarkVerdictsTest, RowsMayBeAskedInAnyOrder) {
    MarkRows rows;
    for (int gid = 1; gid <= 3; ++gid) {
        rows.add(gid, {.timev = 1});
        rows.add(gid, {.timev = 2});
    }
    MarkVerdicts verdicts(rows.rows(), {MarkType::longest, false, ""});
    for (const std::size_t row : {4U, 0U, 2U})
        EXPECT_FALSE(verdicts.of(row).reason.empty()) << row;
    for (const std::size_t row : {5U, 3U, 1U})
        EXPECT_TRUE(verdicts.of(row).reason.empty()) << row;
}

} // namespace
} // namespace songsweep
