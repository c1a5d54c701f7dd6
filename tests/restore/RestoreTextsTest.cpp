// SPDX-License-Identifier: MIT
#include "restore/RestoreTexts.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace songsweep {
namespace {

using ::testing::ElementsAre;
using Entry = RestoredTrack::Entry;
using File = RestoredTrack::File;

RestoredTrack track(Entry entry, File file) {
    RestoredTrack made;
    made.plan.name = "Song";
    made.plan.artist = "X";
    made.plan.path = "/music/a.mp3";
    made.plan.file.size = 1'048'576;
    made.entry = entry;
    made.file = file;
    return made;
}

TEST(RestoreTexts, GroupTheDigitsOfTheirNumbers) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    CleanupSummary cleanup;
    cleanup.end.emplace();
    cleanup.end->tracks = 12'000;
    cleanup.end->files = 11'000;
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).tracks, "12,000");
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).files, "11,000");
    RestoreReport report;
    report.tracks.assign(1'500, track(Entry::restored, File::putBack));
    EXPECT_EQ(restoreTexts::title(report), "1,500 tracks restored");
    QLocale::setDefault(QLocale::system());
}

TEST(RestoreTexts, ForeseeWhatComesBack) {
    RestoreReport report;
    report.tracks = {track(Entry::restored, File::putBack)};
    EXPECT_THAT(restoreTexts::foreseen(report),
                ElementsAre("1 track comes back to the library and its playlists.",
                            "1 file (1.1 MB) comes back from the Trash."));
    report.tracks.push_back(report.tracks.front());
    EXPECT_THAT(restoreTexts::foreseen(report),
                ElementsAre("2 tracks come back to the library and their playlists.",
                            "2 files (2.1 MB) come back from the Trash."));
}

TEST(RestoreTexts, NameEachKindOfObstacleOnce) {
    RestoreReport report;
    report.tracks = {track(Entry::failed, File::none), track(Entry::leftOut, File::isGone),
                     track(Entry::isThere, File::isGone), track(Entry::isThere, File::isOccupied),
                     track(Entry::isThere, File::failed)};
    report.notes = {"The playlist \"Mix\" is gone."};
    EXPECT_THAT(restoreTexts::foreseen(report),
                ElementsAre("1 track cannot come back.", "1 track is left out, since its file is lost.",
                            "1 file is no longer in the Trash; its track is missing it.",
                            "1 file stays in the Trash, since another file has its place.",
                            "1 file stays in the Trash.", "The playlist \"Mix\" is gone."));
}

TEST(RestoreTexts, SayWhereNothingIsLeft) {
    RestoreReport report;
    report.tracks = {track(Entry::isThere, File::isThere)};
    EXPECT_THAT(restoreTexts::foreseen(report), ElementsAre("All of it is there already."));
}

TEST(RestoreTexts, TellWhatCameBackAndHowItEnded) {
    RestoreReport report;
    report.tracks = {track(Entry::restored, File::putBack), track(Entry::restored, File::notAttempted)};
    report.end = RestoreReport::End::cancelled;
    EXPECT_THAT(restoreTexts::done(report),
                ElementsAre("The restore was stopped; restore again to bring back the rest.",
                            "2 tracks are back in the library.", "1 file (1.1 MB) is back in its place."));
    EXPECT_EQ(restoreTexts::title(report), "2 tracks restored");
    EXPECT_EQ(restoreTexts::rest(report),
              "1 file (1.1 MB) put back. A new search shows them. 1 track is not as before.");
    report.end = RestoreReport::End::failed;
    report.problem = "no room";
    EXPECT_EQ(restoreTexts::done(report).front(), "The restore did not come to its end: no room.");
}

TEST(RestoreTexts, CountThePlaylistFilesThatGetTheirLinesBack) {
    RestoreReport report;
    report.playlists = 2;
    EXPECT_THAT(restoreTexts::foreseen(report), ElementsAre("2 playlist files get their lines back."));
    report.playlists = 1;
    EXPECT_THAT(restoreTexts::done(report), ElementsAre("1 playlist file has its lines back."));
}

TEST(RestoreTexts, ListWhatIsNotAsBeforeFirst) {
    RestoreReport report;
    report.tracks = {track(Entry::restored, File::putBack), track(Entry::restored, File::none)};
    report.tracks.back().setFileGone();
    EXPECT_THAT(restoreTexts::details(report),
                ElementsAre("Song – X: track restored, file lost (its file is not in the Trash any more), "
                            "/music/a.mp3",
                            "Song – X: track restored, file put back, /music/a.mp3"));
}

TEST(RestoreTexts, ShowADeletionByItsStateAndWhatItTook) {
    CleanupSummary cleanup;
    cleanup.heading.tracks = 5;
    restoreTexts::CleanupCells cells = restoreTexts::cellsOf(cleanup);
    EXPECT_EQ(cells.tracks, "5") << "as planned";
    EXPECT_EQ(cells.files, "?");
    EXPECT_EQ(cells.state, "Backup missing");
    cleanup.hasBackup = true;
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).state, "Interrupted");
    cleanup.end = RecordEnd{RecordEnd::How::cancelled, "", 2, 1, 1'048'576};
    cells = restoreTexts::cellsOf(cleanup);
    EXPECT_EQ(cells.tracks, "2");
    EXPECT_EQ(cells.files, "1");
    EXPECT_EQ(cells.size, "1.1 MB");
    EXPECT_EQ(cells.state, "Cancelled");
    cleanup.end->how = RecordEnd::How::failed;
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).state, "Failed");
    cleanup.end->how = RecordEnd::How::complete;
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).state, "");
    cleanup.isRestored = true;
    EXPECT_EQ(restoreTexts::cellsOf(cleanup).state, "Restored");
}

} // namespace
} // namespace songsweep
