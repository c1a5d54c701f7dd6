// SPDX-License-Identifier: MIT
#include "DeleteConfirmationFixture.h"
#include "support/Widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::child;
using DeleteConfirmationTest = test::DeleteConfirmationFixture;
using test::threeTracks;

QStringList visibleLines(const DeleteConfirmation& sheet) {
    QStringList lines;
    const auto& trash = child<QLabel>(sheet, "delConfTrashLabel");
    const auto& shared = child<QLabel>(sheet, "delConfSharedLabel");
    const auto& missing = child<QLabel>(sheet, "delConfMissingLabel");
    if (!trash.isHidden()) lines.append(trash.text());
    if (!shared.isHidden()) lines.append(shared.text());
    if (!missing.isHidden()) lines.append(missing.text());
    const auto& refused = child<QLabel>(sheet, "delConfRefusedLabel");
    if (!refused.isHidden()) lines.append(refused.text());
    return lines;
}

void trashSharedFiles(const DeleteConfirmation& sheet) {
    child<QToolButton>(sheet, "delConfOptionsButton").click();
    child<QCheckBox>(sheet, "delConfTrashSharedCK").click();
}

TEST_F(DeleteConfirmationTest, StartsWithTheFilesLeftWhereTheyAre) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    EXPECT_FALSE(sheet.deletesFiles());
    EXPECT_EQ(visibleLines(sheet), QStringList(QStringLiteral("The files stay where they are.")));
}

TEST_F(DeleteConfirmationTest, TellsWhatHappensToTheFilesOnceTheyGoToo) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_EQ(visibleLines(sheet),
              QStringList({QStringLiteral("2 files, 8.6 MB, go to the Trash."),
                           QStringLiteral("1 file is shared with a track that stays, and is kept."),
                           QStringLiteral("1 file is missing already.")}));
}

TEST_F(DeleteConfirmationTest, LeavesOutLinesThatHaveNothingToCount) {
    DeleteConfirmationFacts facts = threeTracks();
    facts.sharedFiles = 0;
    facts.missingFiles = 0;
    DeleteConfirmation sheet;
    sheet.setFacts(facts);
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_EQ(visibleLines(sheet), QStringList(QStringLiteral("2 files, 8.6 MB, go to the Trash.")));
}

TEST_F(DeleteConfirmationTest, CountsSharedFilesWithTheOthersOnceTheyAreNotLeft) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_TRUE(sheet.leavesSharedFiles());
    EXPECT_TRUE(child<QCheckBox>(sheet, "delConfTrashSharedCK").isHidden())
        << "nobody trashes them by accident";
    trashSharedFiles(sheet);
    EXPECT_FALSE(sheet.leavesSharedFiles());
    EXPECT_EQ(visibleLines(sheet),
              QStringList({QStringLiteral("3 files, 9.6 MB, go to the Trash."),
                           QStringLiteral("1 file is shared with a track that stays, and goes too."),
                           QStringLiteral("1 file is missing already.")}));
}

TEST_F(DeleteConfirmationTest, KeepsTheFileOptionButOffersToLeaveSharedFilesEachTime) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    trashSharedFiles(sheet);
    sheet.setFacts(threeTracks());
    EXPECT_TRUE(sheet.deletesFiles());
    EXPECT_TRUE(sheet.leavesSharedFiles());
}

TEST_F(DeleteConfirmationTest, WarnsOfSongsThatLoseTheirFileWithTheSharedOnes) {
    DeleteConfirmationFacts facts = threeTracks();
    facts.groupsLosingSharedFiles = 2;
    DeleteConfirmation sheet;
    sheet.setFacts(facts);
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_EQ(child<QLabel>(sheet, "delConfWarningLabel").text(), QString());
    trashSharedFiles(sheet);
    EXPECT_EQ(child<QLabel>(sheet, "delConfWarningLabel").text(),
              QStringLiteral("No copy of 2 songs will be left."));
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_TRUE(sheet.leavesSharedFiles()) << "no file goes at all";
    EXPECT_TRUE(child<QToolButton>(sheet, "delConfOptionsButton").isHidden());
}

TEST_F(DeleteConfirmationTest, DoesNotMoveWhenTheFileOptionIsSwitched) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    test::open(sheet);
    const QSize before = sheet.size();
    const QPoint button = child<QPushButton>(sheet, "delConfOkButton").mapTo(&sheet, QPoint());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(sheet.size(), before);
    EXPECT_EQ(child<QPushButton>(sheet, "delConfOkButton").mapTo(&sheet, QPoint()), button);
}

TEST_F(DeleteConfirmationTest, HasNoEmptyLineOnceTheFilesGo) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    test::open(sheet);
    const auto& lines = child<QWidget>(sheet, "delConfLines");
    EXPECT_EQ(lines.height(), 3 * child<QLabel>(sheet, "delConfTrashLabel").minimumHeight());
    const int end = lines.mapTo(&sheet, QPoint(0, lines.height())).y();
    EXPECT_EQ(child<QToolButton>(sheet, "delConfOptionsButton").mapTo(&sheet, QPoint()).y(), end);
}

TEST_F(DeleteConfirmationTest, DoesNotMoveEitherWhereNoFileGoesToTheTrash) {
    DeleteConfirmationFacts facts = threeTracks();
    facts.filesToTrash = 0;
    for (const int missing : {0, 1, 2}) {
        facts.missingFiles = missing;
        facts.sharedFiles = missing / 2;
        DeleteConfirmation sheet;
        sheet.setFacts(facts);
        test::open(sheet);
        const QSize before = sheet.size();
        child<QCheckBox>(sheet, "delConfFileCK").click();
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(sheet.size(), before) << missing;
    }
}

TEST_F(DeleteConfirmationTest, ReservesNoRoomForItsWarning) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    test::open(sheet);
    const int before = sheet.height();
    DeleteConfirmationFacts losing = threeTracks();
    losing.groupsLosingEveryCopy = 1;
    sheet.updateFacts(losing);
    QCoreApplication::sendPostedEvents();
    EXPECT_GE(sheet.height(), before + child<QLabel>(sheet, "delConfWarningLabel").height());
    EXPECT_EQ(test::clippedControls(sheet), QStringList());
}

TEST_F(DeleteConfirmationTest, CountsAnewOnceTheFilesWereLookedAt) {
    DeleteConfirmation sheet;
    sheet.setFacts({.tracks = 3, .filesPending = true});
    sheet.updateFacts({.tracks = 3, .keptTracks = 1});
    EXPECT_EQ(child<QLabel>(sheet, "delConfHeadingLabel").text(),
              QStringLiteral("Delete 2 tracks from iTunes?"));
}

TEST_F(DeleteConfirmationTest, OffersNothingWhereEachTrackStays) {
    DeleteConfirmation sheet;
    sheet.setFacts({.tracks = 3, .keptTracks = 3});
    sheet.show();
    EXPECT_FALSE(child<QCheckBox>(sheet, "delConfFileCK").isVisible());
    EXPECT_FALSE(child<QWidget>(sheet, "delConfLines").isVisible());
    sheet.setFilesAlwaysGo(true);
    EXPECT_EQ(child<QLabel>(sheet, "delConfTextLabel").text(), QStringLiteral("Nothing will be deleted."));
}

TEST_F(DeleteConfirmationTest, OffersNoFilesWhereTheRestOfTheLibraryCouldNotBeRead) {
    DeleteConfirmation sheet;
    sheet.setFacts({.tracks = 3, .missingFiles = 1, .libraryUnknown = true});
    EXPECT_EQ(visibleLines(sheet), QStringList(QStringLiteral("The files stay where they are.")));
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_EQ(visibleLines(sheet),
              QStringList({QStringLiteral("The rest of the library could not be read, so the files stay."),
                           QStringLiteral("1 file is missing already.")}));
    test::open(sheet);
    EXPECT_EQ(test::clippedControls(sheet), QStringList());
}

/// Three tracks whose files are still looked at.
DeleteConfirmationFacts pendingTracks() { return {.tracks = 3, .filesPending = true}; }

bool canDelete(const DeleteConfirmation& sheet) {
    return child<QPushButton>(sheet, "delConfOkButton").isEnabled();
}

TEST_F(DeleteConfirmationTest, WaitsForTheFilesOnlyWhereTheyGoToo) {
    DeleteConfirmation sheet;
    sheet.setFacts(pendingTracks());
    EXPECT_TRUE(canDelete(sheet));
    EXPECT_EQ(visibleLines(sheet), QStringList(QStringLiteral("The files stay where they are.")));
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_FALSE(canDelete(sheet));
    EXPECT_EQ(visibleLines(sheet), QStringList(QStringLiteral("Looking at the files...")));
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_TRUE(canDelete(sheet));
}

TEST_F(DeleteConfirmationTest, TellsOfTheFilesOnceTheyWereLookedAt) {
    DeleteConfirmation sheet;
    sheet.setFacts(pendingTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    sheet.updateFacts(threeTracks());
    EXPECT_TRUE(canDelete(sheet));
    EXPECT_EQ(visibleLines(sheet),
              QStringList({QStringLiteral("2 files, 8.6 MB, go to the Trash."),
                           QStringLiteral("1 file is shared with a track that stays, and is kept."),
                           QStringLiteral("1 file is missing already.")}));
}

TEST_F(DeleteConfirmationTest, KeepsFocusAndPlaceWhenTheFilesWereLookedAt) {
    DeleteConfirmation sheet;
    sheet.setFacts(pendingTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    test::open(sheet);
    const QPoint place = sheet.pos();
    const int width = sheet.width();
    child<QCheckBox>(sheet, "delConfFileCK").setFocus();
    sheet.updateFacts(threeTracks());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(sheet.pos(), place);
    EXPECT_EQ(sheet.width(), width);
    EXPECT_EQ(sheet.focusWidget(), &child<QCheckBox>(sheet, "delConfFileCK"));
    EXPECT_EQ(test::filledButtons(sheet), QStringList(QStringLiteral("&Cancel")));
}

TEST_F(DeleteConfirmationTest, TellsOfFilesThatTheTrashRefusesAndWhy) {
    DeleteConfirmationFacts facts = threeTracks();
    facts.refusedFiles = 2;
    facts.refusal = "there is no Trash for files of /music";
    DeleteConfirmation sheet;
    sheet.setFacts(facts);
    test::open(sheet);
    const QSize before = sheet.size();
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_EQ(visibleLines(sheet).value(3), QStringLiteral("2 files cannot go to the Trash, and are kept."));
    EXPECT_EQ(child<QLabel>(sheet, "delConfRefusedLabel").toolTip(),
              QStringLiteral("there is no Trash for files of /music"));
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(sheet.size(), before);
}

TEST_F(DeleteConfirmationTest, WarnsThatTheLibraryCannotBeWrittenOnceThatIsKnown) {
    DeleteConfirmation sheet;
    sheet.setFacts(pendingTracks());
    DeleteConfirmationFacts facts = threeTracks();
    facts.libraryObstacle = "cannot write in /music: Permission denied";
    sheet.updateFacts(facts);
    EXPECT_FALSE(child<QWidget>(sheet, "delConfWarning").isHidden());
    const auto& warning = child<QLabel>(sheet, "delConfWarningLabel");
    EXPECT_EQ(warning.text(), QStringLiteral("The library cannot be written."));
    EXPECT_EQ(warning.toolTip(), QStringLiteral("cannot write in /music: Permission denied"));
}

TEST_F(DeleteConfirmationTest, WarnsOnlyWhereASongLosesEveryCopy) {
    DeleteConfirmationFacts facts = threeTracks();
    DeleteConfirmation sheet;
    sheet.setFacts(facts);
    EXPECT_TRUE(child<QWidget>(sheet, "delConfWarning").isHidden());
    facts.groupsLosingEveryCopy = 2;
    sheet.setFacts(facts);
    EXPECT_FALSE(child<QWidget>(sheet, "delConfWarning").isHidden());
    EXPECT_EQ(child<QLabel>(sheet, "delConfWarningLabel").text(),
              QStringLiteral("No copy of 2 songs will be left."));
}

TEST_F(DeleteConfirmationTest, LeadsToTheSongsOfTheWarning) {
    DeleteConfirmationFacts facts = threeTracks();
    DeleteConfirmation sheet;
    sheet.setFacts(facts);
    const auto& show = child<QToolButton>(sheet, "delConfLostSongsButton");
    EXPECT_TRUE(show.isHidden());
    facts.libraryObstacle = "cannot write";
    sheet.setFacts(facts);
    EXPECT_TRUE(show.isHidden()) << "a library that cannot be written is no song";
    facts.groupsLosingEveryCopy = facts.groupsLosingEveryFile = 1;
    sheet.setFacts(facts);
    EXPECT_FALSE(show.isHidden());
    QSignalSpy asked(&sheet, &DeleteConfirmation::lostSongsRequested);
    child<QAbstractButton>(sheet, "delConfLostSongsButton").click();
    child<QCheckBox>(sheet, "delConfFileCK").click();
    child<QAbstractButton>(sheet, "delConfLostSongsButton").click();
    ASSERT_EQ(asked.size(), 2);
    EXPECT_EQ(asked[0][0].value<FilesToTrash>(), FilesToTrash::none);
    EXPECT_EQ(asked[1][0].value<FilesToTrash>(), FilesToTrash::unshared);
}

TEST_F(DeleteConfirmationTest, WarnsOfCopiesThatAreFoundBroken) {
    DeleteConfirmation sheet;
    sheet.setFacts(pendingTracks());
    child<QCheckBox>(sheet, "delConfFileCK").click();
    test::open(sheet);
    DeleteConfirmationFacts facts = threeTracks();
    facts.groupsLosingEveryFile = 1;
    sheet.updateFacts(facts);
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(child<QWidget>(sheet, "delConfWarning").isVisible());
    EXPECT_EQ(child<QLabel>(sheet, "delConfWarningLabel").text(),
              QStringLiteral("No copy of 1 song will be left."));
    child<QCheckBox>(sheet, "delConfFileCK").click();
    EXPECT_FALSE(child<QWidget>(sheet, "delConfWarning").isVisible()) << "the files stay";
}

TEST_F(DeleteConfirmationTest, SaysThatNothingIsMarkedAndLetsTheDeletionRun) {
    DeleteConfirmation sheet;
    sheet.setFacts({});
    EXPECT_EQ(child<QLabel>(sheet, "delConfHeadingLabel").text(), QStringLiteral("No tracks are marked"));
    EXPECT_EQ(child<QLabel>(sheet, "delConfTextLabel").text(), QStringLiteral("Nothing will be deleted."));
    EXPECT_TRUE(child<QWidget>(sheet, "delConfFileCK").isHidden());
    EXPECT_EQ(child<QPushButton>(sheet, "delConfOkButton").text(), QStringLiteral("&Delete"));
    EXPECT_TRUE(child<QPushButton>(sheet, "delConfOkButton").isEnabled());
}

} // namespace
} // namespace songsweep
