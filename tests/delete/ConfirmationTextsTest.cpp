// SPDX-License-Identifier: MIT
#include "delete/ConfirmationTexts.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

namespace texts = confirmationTexts;

DeleteConfirmationFacts counts(int each) {
    DeleteConfirmationFacts facts;
    facts.tracks = facts.filesToTrash = facts.sharedFiles = facts.missingFiles = facts.groupsLosingEveryCopy =
        each;
    facts.bytesToTrash = 5'400'000;
    facts.sharedBytes = 1'048'576;
    return facts;
}

TEST(ConfirmationTexts, AreWordedForOne) {
    const DeleteConfirmationFacts one = counts(1);
    EXPECT_EQ(texts::heading(one), QStringLiteral("Delete 1 track from iTunes?"));
    EXPECT_EQ(texts::explanation(one),
              QStringLiteral("It also leaves every playlist. iTunes cannot undo this."));
    EXPECT_EQ(texts::fileOption(one), QStringLiteral("Move its &file to the Trash too"));
    EXPECT_EQ(texts::deleteButton(one), QStringLiteral("&Delete 1 track"));
    EXPECT_EQ(texts::filesStayLine(one), QStringLiteral("The file stays where it is."));
    EXPECT_EQ(texts::libraryUnknownLine(one),
              QStringLiteral("The rest of the library could not be read, so the file stays."));
    EXPECT_EQ(texts::trashLine(one, true), QStringLiteral("1 file, 5.2 MB, goes to the Trash."));
    EXPECT_EQ(texts::sharedLine(one, true),
              QStringLiteral("1 file is shared with a track that stays, and is kept."));
    EXPECT_EQ(texts::missingLine(one), QStringLiteral("1 file is missing already."));
    EXPECT_EQ(texts::warning(one, FilesToTrash::none), QStringLiteral("No copy of 1 song will be left."));
}

TEST(ConfirmationTexts, LeaveOutTracksThatStayForASharedId) {
    DeleteConfirmationFacts facts{.tracks = 3, .keptTracks = 1, .embeddedLibrary = true};
    EXPECT_EQ(texts::heading(facts), QStringLiteral("Delete 2 tracks from the library?"));
    EXPECT_EQ(texts::deleteButton(facts), QStringLiteral("&Delete 2 tracks"));
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none),
              QStringLiteral("1 track shares its ID with another one, and stays."));
    facts.keptTracks = 3;
    EXPECT_EQ(texts::heading(facts), QStringLiteral("No track can be deleted"));
    EXPECT_EQ(texts::explanation(facts), QStringLiteral("Nothing will be deleted."));
    EXPECT_EQ(texts::deleteButton(facts), QStringLiteral("&Delete"));
    EXPECT_EQ(texts::warning(facts, FilesToTrash::all),
              QStringLiteral("3 tracks share their IDs with others, and stay."));
}

TEST(ConfirmationTexts, AreWordedForMany) {
    const DeleteConfirmationFacts two = counts(2);
    EXPECT_EQ(texts::heading(two), QStringLiteral("Delete 2 tracks from iTunes?"));
    EXPECT_EQ(texts::explanation(two),
              QStringLiteral("They also leave every playlist. iTunes cannot undo this."));
    EXPECT_EQ(texts::fileOption(two), QStringLiteral("Move their &files to the Trash too"));
    EXPECT_EQ(texts::deleteButton(two), QStringLiteral("&Delete 2 tracks"));
    EXPECT_EQ(texts::filesStayLine(two), QStringLiteral("The files stay where they are."));
    EXPECT_EQ(texts::libraryUnknownLine(two),
              QStringLiteral("The rest of the library could not be read, so the files stay."));
    EXPECT_EQ(texts::trashLine(two, true), QStringLiteral("2 files, 5.2 MB, go to the Trash."));
    EXPECT_EQ(texts::sharedLine(two, true),
              QStringLiteral("2 files are shared with tracks that stay, and are kept."));
    EXPECT_EQ(texts::missingLine(two), QStringLiteral("2 files are missing already."));
    EXPECT_EQ(texts::warning(two, FilesToTrash::none), QStringLiteral("No copy of 2 songs will be left."));
}

TEST(ConfirmationTexts, SayNothingWhereThereIsNothingToCount) {
    const DeleteConfirmationFacts none = counts(0);
    EXPECT_EQ(texts::heading(none), QStringLiteral("No tracks are marked"));
    EXPECT_EQ(texts::explanation(none), QStringLiteral("Nothing will be deleted."));
    EXPECT_EQ(texts::deleteButton(none), QStringLiteral("&Delete"));
    EXPECT_EQ(texts::trashLine(none, true), QString());
    EXPECT_EQ(texts::sharedLine(none, true), QString());
    EXPECT_EQ(texts::missingLine(none), QString());
    EXPECT_EQ(texts::warning(none, FilesToTrash::none), QString());
}

TEST(ConfirmationTexts, SpeakOfTheLibraryAndItsCopyWhereItIsEmbedded) {
    DeleteConfirmationFacts facts = counts(3);
    facts.embeddedLibrary = true;
    EXPECT_EQ(texts::iTunesLine(facts), QString());
    EXPECT_EQ(texts::heading(facts), QStringLiteral("Delete 3 tracks from the library?"));
    EXPECT_EQ(
        texts::explanation(facts),
        QStringLiteral("They also leave every playlist. A copy of the library file is kept beside it."));
}

TEST(ConfirmationTexts, TellWhatTheCopyThatStaysIsGivenOnceItIsKnown) {
    DeleteConfirmationFacts facts = counts(3);
    facts.mergeOffered = true;
    EXPECT_EQ(texts::explanation(facts), QStringLiteral("iTunes cannot undo this."));
    EXPECT_EQ(texts::iTunesLine(facts),
              QStringLiteral("In iTunes it goes to the end of each playlist, and its date added stays."));
    EXPECT_EQ(texts::placesNumber(facts), QString());
    EXPECT_EQ(texts::unmergedLine(facts), QString());
    facts.merge = MergeCounts{.places = 12,
                              .playlists = 5,
                              .plays = 31,
                              .ratings = 4,
                              .fillIns = 0,
                              .keepSeveral = 2,
                              .unclear = 0};
    EXPECT_EQ(texts::placesNumber(facts), QStringLiteral("12 places in 5 playlists"));
    EXPECT_EQ(texts::historyNumber(facts), QStringLiteral("31 plays, 4 ratings"));
    EXPECT_EQ(texts::fillInNumber(facts), QStringLiteral("none"));
    EXPECT_EQ(texts::unmergedLine(facts), QStringLiteral("2 songs keep two copies or more: not merged"));
}

TEST(ConfirmationTexts, AddSharedFilesToTheTrashWhenTheyAreNotLeft) {
    EXPECT_EQ(texts::trashLine(counts(1), false), QStringLiteral("2 files, 6.2 MB, go to the Trash."));
    EXPECT_EQ(texts::sharedLine(counts(1), false),
              QStringLiteral("1 file is shared with a track that stays, and goes too."));
    EXPECT_EQ(texts::sharedLine(counts(2), false),
              QStringLiteral("2 files are shared with tracks that stay, and go too."));
}

TEST(ConfirmationTexts, WarnOfTheSongsThatLoseEveryFileWhereFilesGo) {
    DeleteConfirmationFacts facts = {.groupsLosingEveryCopy = 1, .groupsLosingEveryFile = 3};
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none), QStringLiteral("No copy of 1 song will be left."));
    EXPECT_EQ(texts::warning(facts, FilesToTrash::unshared),
              QStringLiteral("No copy of 3 songs will be left."));
    facts.filesPending = true;
    EXPECT_EQ(texts::warning(facts, FilesToTrash::unshared),
              QStringLiteral("No copy of 1 song will be left."));
}

TEST(ConfirmationTexts, TellOfFilesThatTheTrashRefuses) {
    EXPECT_EQ(texts::refusedLine({.refusedFiles = 0}), QString());
    EXPECT_EQ(texts::refusedLine({.refusedFiles = 1}),
              QStringLiteral("1 file cannot go to the Trash, and is kept."));
    EXPECT_EQ(texts::refusedLine({.refusedFiles = 2}),
              QStringLiteral("2 files cannot go to the Trash, and are kept."));
}

TEST(ConfirmationTexts, NameTheOtherSongsweepThatIsAtTheLibrary) {
    const DeleteConfirmationFacts facts = {.libraryObstacle =
                                               "another Songsweep (the window) is cleaning up this library",
                                           .libraryInUse = true};
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none),
              QStringLiteral("The library cannot be written:\n"
                             "another Songsweep (the window) is cleaning up this library."));
}

TEST(ConfirmationTexts, WarnOfTheLibraryUnlessThereIsWorse) {
    DeleteConfirmationFacts facts = {.libraryObstacle = "cannot write in /music"};
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none), QStringLiteral("The library cannot be written."));
    facts.groupsLosingEveryCopy = 1;
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none), QStringLiteral("No copy of 1 song will be left."));
}

TEST(ConfirmationTexts, WarnOfTheLastCopiesOfRecordings) {
    DeleteConfirmationFacts facts = {.libraryObstacle = "cannot write in /music", .lastOfRecordings = 1};
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none),
              QStringLiteral("1 marked copy is the last of its recording."));
    facts.lastOfRecordings = 2;
    facts.groupsLosingEveryCopy = 1;
    EXPECT_EQ(texts::warning(facts, FilesToTrash::none),
              QStringLiteral("No copy of 1 song will be left.\n"
                             "2 marked copies are the last of their recordings."));
}

TEST(ConfirmationTexts, WriteMegabytesAsTheSizeColumnDoes) {
    EXPECT_EQ(texts::megabytes(0), QStringLiteral("0.1 MB"));
    EXPECT_EQ(texts::megabytes(5'242'880), QStringLiteral("5.1 MB"));
    EXPECT_EQ(texts::megabytes(10'737'418'240), QStringLiteral("10240.1 MB"));
}

} // namespace
} // namespace songsweep
