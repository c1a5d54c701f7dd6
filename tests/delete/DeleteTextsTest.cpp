// SPDX-License-Identifier: MIT
#include "delete/DeleteTexts.h"

#include "delete/DeleteReport.h"
#include "platform/HfsPath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

TEST(DeleteTextsTest, TheTextsStandAsWritten) {
    EXPECT_STREQ(deleteTexts::mute, "tell application \"Finder\" \nset volume with output muted \nend tell");
    EXPECT_STREQ(deleteTexts::unmute,
                 "tell application \"Finder\" \nset volume without output muted \nend tell");
    EXPECT_EQ(deleteTexts::deleteTrack("00A1B2"),
              "tell application \"iTunes\" to delete (tracks whose persistent ID is \"00A1B2\")");
    EXPECT_EQ(deleteTexts::deleteFile("Macintosh HD:a.mp3"),
              "tell application \"Finder\" \nset file_to_delete to alias \"Macintosh HD:a.mp3\" \n"
              "set locked of file_to_delete to false \ndelete file_to_delete \nend tell");
}

TEST(DeleteTextsTest, WordsThatWouldEndTheirLiteralAreEscaped) {
    EXPECT_EQ(deleteTexts::deleteTrack("0\") \\ (\""),
              "tell application \"iTunes\" to delete (tracks whose persistent ID is \"0\\\") \\\\ (\\\"\")");
    EXPECT_THAT(deleteTexts::deleteFile("Macintosh HD:say \"hi\":back\\slash"),
                testing::HasSubstr("alias \"Macintosh HD:say \\\"hi\\\":back\\\\slash\" \n"));
}

TEST(DeleteTextsTest, OnlyNamesThatReadBackAreSent) {
    for (const char* const path : {"/a.mp3", "/a:b/c d.mp3", "/été/歌.mp3", "/line\nbreak\r.mp3", "/it's.mp3",
                                   "/a\"b", "/a\\b", "/a\\\\b", "/a\\nb", "/no text \xff"})
        EXPECT_EQ(nameableHfsPath(path), hfsPath(path)) << path;
    for (const char* const path : {"relative.mp3", "", "msng"})
        EXPECT_FALSE(canNameFile(path)) << path;
}

TEST(DeleteReportTest, AnOutcomeSaysWhatBecameOfTrackAndFile) {
    using Track = DeleteOutcome::Track;
    using File = DeleteOutcome::File;
    const auto text = [](Track track, File file, const char* reason) {
        DeleteOutcome outcome;
        outcome.track = track;
        outcome.file = file;
        outcome.reason = reason;
        return outcomeText(outcome);
    };
    EXPECT_EQ(text(Track::deleted, File::notAsked, ""), "deleted");
    EXPECT_EQ(text(Track::deleted, File::trashed, ""), "deleted, file trashed");
    EXPECT_EQ(text(Track::deleted, File::missing, ""), "deleted, file missing");
    EXPECT_EQ(text(Track::deleted, File::kept, "no space"), "deleted, file kept: no space");
    EXPECT_EQ(text(Track::failed, File::notAsked, "no answer"), "failed: no answer");
    EXPECT_EQ(text(Track::notAttempted, File::notAsked, ""), "not attempted");
}

TEST(DeleteReportTest, ALineBreakInANameDoesNotBreakTheLogLine) {
    DeleteOutcome outcome;
    outcome.name = "two\nlines";
    outcome.artist = "A\rB";
    EXPECT_EQ(outcomeLine(outcome), "Track two lines by A B () not attempted");
}

TEST(DeleteReportTest, AllIsDealtWithOnlyIfEachTrackIs) {
    DeleteReport report;
    EXPECT_TRUE(report.allDealtWith());
    report.outcomes.resize(2);
    report.outcomes[0].dealtWith = true;
    EXPECT_FALSE(report.allDealtWith());
    report.outcomes[1].dealtWith = true;
    EXPECT_TRUE(report.allDealtWith());
}

} // namespace
} // namespace songsweep
