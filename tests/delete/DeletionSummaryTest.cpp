// SPDX-License-Identifier: MIT
#include "delete/DeletionSummary.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using ::testing::ElementsAre;
using Track = DeleteOutcome::Track;
using File = DeleteOutcome::File;

void add(DeleteReport& report, int count, Track track, File file, const std::string& reason = {}) {
    for (int i = 0; i < count; ++i) {
        DeleteOutcome outcome;
        outcome.track = track;
        outcome.file = file;
        outcome.name = "Song";
        outcome.artist = "X";
        outcome.location = "/music/a.mp3";
        outcome.reason = reason;
        outcome.dealtWith = reason.empty() && track == Track::deleted;
        report.outcomes.push_back(outcome);
    }
}

TEST(DeletionSummary, GroupsTheDigitsOfItsNumbers) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    DeleteReport report;
    add(report, 1200, Track::deleted, File::trashed);
    EXPECT_EQ(summaryOf(report, 600'000).line(), "1,200 tracks deleted, 1,200 files in the Trash (0.6 MB).");
    add(report, 1000, Track::failed, File::kept, "no");
    EXPECT_EQ(summaryOf(report, 600'000).title, "1,200 of 2,200 tracks deleted");
    QLocale::setDefault(QLocale::system());
}

TEST(DeletionSummary, TellsTracksAndFiles) {
    DeleteReport report;
    add(report, 36, Track::deleted, File::trashed);
    add(report, 3, Track::deleted, File::kept);
    add(report, 17, Track::deleted, File::missing);
    const DeletionSummary summary = summaryOf(report, 600'000);
    EXPECT_EQ(summary.title, "56 tracks deleted");
    EXPECT_EQ(summary.rest, "36 files in the Trash (0.6 MB), 3 files kept, 17 files missing already.");
    EXPECT_EQ(summary.line(),
              "56 tracks deleted, 36 files in the Trash (0.6 MB), 3 files kept, 17 files missing "
              "already.");
}

TEST(DeletionSummary, KnowsTheSingular) {
    DeleteReport report;
    add(report, 1, Track::deleted, File::trashed);
    EXPECT_EQ(summaryOf(report, 1).line(), "1 track deleted, 1 file in the Trash (0.1 MB).");
}

TEST(DeletionSummary, SaysNothingOfFilesThatWereNotAskedFor) {
    DeleteReport report;
    add(report, 2, Track::deleted, File::notAsked);
    EXPECT_EQ(summaryOf(report, std::nullopt).line(), "2 tracks deleted");
}

TEST(DeletionSummary, LeavesOutASizeThatNobodyKnows) {
    DeleteReport report;
    add(report, 2, Track::deleted, File::trashed);
    EXPECT_EQ(summaryOf(report, std::nullopt).line(), "2 tracks deleted, 2 files in the Trash.");
}

TEST(DeletionSummary, SaysHowFarACancelledOneCame) {
    DeleteReport report;
    add(report, 12, Track::deleted, File::trashed);
    add(report, 1, Track::failed, File::kept, "no such track");
    add(report, 44, Track::notAttempted, File::notAsked);
    report.how = RecordEnd::How::cancelled;
    const DeletionSummary summary = summaryOf(report, std::nullopt);
    EXPECT_EQ(summary.title, "Cancelled: 12 of 57 tracks deleted");
    EXPECT_EQ(summary.rest, "12 files in the Trash, 1 file kept, 1 track could not be deleted, 44 tracks not "
                            "attempted.");
}

TEST(DeletionSummary, SaysWhatStoppedAFailedOneAndWhatElseCouldNotBeDone) {
    DeleteReport report;
    add(report, 1, Track::deleted, File::notAsked);
    add(report, 2, Track::failed, File::notAsked, "the library was not written");
    report.how = RecordEnd::How::failed;
    report.notWritten = "the disk is full";
    report.notes = {"The playlist was not changed"};
    const DeletionSummary summary = summaryOf(report, std::nullopt);
    EXPECT_EQ(summary.title, "Stopped: 1 of 3 tracks deleted");
    EXPECT_EQ(
        summary.rest,
        "2 tracks could not be deleted. It ended early: the disk is full. The playlist was not changed.");
}

TEST(DeletionDetails, NameWhatDidNotGoAsAskedFirstAndWhy) {
    DeleteReport report;
    add(report, 1, Track::deleted, File::trashed);
    add(report, 1, Track::deleted, File::kept, "the Trash refuses it");
    EXPECT_THAT(detailsOf(report),
                ElementsAre("Song – X: deleted, file kept: the Trash refuses it, /music/a.mp3",
                            "Song – X: deleted, file trashed, /music/a.mp3"));
}

} // namespace
} // namespace songsweep
