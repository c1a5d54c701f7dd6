// SPDX-License-Identifier: MIT
// What the confirmation offers to give the copy that stays.
#include "DeleteConfirmationFixture.h"
#include "support/Widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace songsweep {
namespace {

using test::child;
using DeleteConfirmationTest = test::DeleteConfirmationFixture;
using test::threeTracks;

DeleteConfirmationFacts threeCopies() {
    DeleteConfirmationFacts facts = threeTracks();
    facts.mergeOffered = true;
    facts.embeddedLibrary = true;
    return facts;
}

DeleteConfirmationFacts counted() {
    DeleteConfirmationFacts facts = threeCopies();
    facts.merge =
        MergeCounts{.places = 12, .playlists = 5, .plays = 31, .ratings = 4, .fillIns = 3, .keepSeveral = 2};
    return facts;
}

QString text(const DeleteConfirmation& sheet, const char* label) {
    return child<QLabel>(sheet, label).text();
}

TEST_F(DeleteConfirmationTest, KeepsPlacesAndHistoryUnlessToldOtherwise) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeCopies());
    EXPECT_EQ(sheet.mergeChoice(), (MergeChoice{.places = true, .history = true, .fillIns = false}));
    for (const char* const box : {"delConfPlacesCK", "delConfHistoryCK", "delConfFillInCK"})
        child<QCheckBox>(sheet, box).click();
    EXPECT_EQ(sheet.mergeChoice(), (MergeChoice{.places = false, .history = false, .fillIns = true}));
    sheet.setFacts(counted());
    EXPECT_TRUE(sheet.mergeChoice().fillIns) << "it is kept from one confirmation to the next";
}

TEST_F(DeleteConfirmationTest, OffersNothingToMergeWhereNoCopyStays) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeTracks());
    EXPECT_EQ(sheet.mergeChoice(), MergeChoice());
    for (const char* const name :
         {"delConfPlacesCK", "delConfHistoryCK", "delConfFillInCK", "delConfPlacesLabel",
          "delConfHistoryLabel", "delConfFillInLabel", "delConfITunesLabel"})
        EXPECT_TRUE(child<QWidget>(sheet, name).isHidden()) << name;
}

TEST_F(DeleteConfirmationTest, TellsTheNumbersOfAMergeOnceTheyAreKnown) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeCopies());
    EXPECT_EQ(text(sheet, "delConfPlacesLabel"), QString());
    EXPECT_TRUE(child<QLabel>(sheet, "delConfUnmergedLabel").isHidden());
    sheet.updateFacts(counted());
    EXPECT_EQ(text(sheet, "delConfPlacesLabel"), QStringLiteral("12 places in 5 playlists"));
    EXPECT_EQ(text(sheet, "delConfHistoryLabel"), QStringLiteral("31 plays, 4 ratings"));
    EXPECT_EQ(text(sheet, "delConfFillInLabel"), QStringLiteral("3 values"));
    EXPECT_EQ(text(sheet, "delConfUnmergedLabel"),
              QStringLiteral("2 songs keep two copies or more: not merged"));
    EXPECT_FALSE(child<QLabel>(sheet, "delConfUnmergedLabel").isHidden());
}

TEST_F(DeleteConfirmationTest, LeavesPlaylistsAloneWhereATrackIsItsFile) {
    DeleteConfirmation sheet;
    sheet.setFilesAlwaysGo(true);
    sheet.setFacts(counted());
    EXPECT_TRUE(child<QCheckBox>(sheet, "delConfPlacesCK").isHidden());
    EXPECT_TRUE(child<QLabel>(sheet, "delConfPlacesLabel").isHidden());
    EXPECT_EQ(sheet.mergeChoice(), (MergeChoice{.places = false, .history = true, .fillIns = false}));
    EXPECT_TRUE(
        text(sheet, "delConfTextLabel").startsWith(QStringLiteral("They also leave every playlist.")));
}

TEST_F(DeleteConfirmationTest, TellsOfTheSystemsITunesWhatItDoesOtherwise) {
    DeleteConfirmation sheet;
    DeleteConfirmationFacts facts = counted();
    sheet.setFacts(facts);
    EXPECT_TRUE(child<QLabel>(sheet, "delConfITunesLabel").isHidden());
    facts.embeddedLibrary = false;
    sheet.setFacts(facts);
    EXPECT_FALSE(child<QLabel>(sheet, "delConfITunesLabel").isHidden());
    test::open(sheet);
    EXPECT_EQ(test::clippedControls(sheet), QStringList());
}

TEST_F(DeleteConfirmationTest, DoesNotMoveWhenTheNumbersOfAMergeComeIn) {
    DeleteConfirmation sheet;
    sheet.setFacts(threeCopies());
    test::open(sheet);
    const QSize before = sheet.size();
    DeleteConfirmationFacts facts = counted();
    facts.merge->keepSeveral = 0;
    facts.merge->plays = 12345;
    facts.merge->ratings = 1234;
    sheet.updateFacts(facts);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(sheet.size(), before);
    EXPECT_EQ(test::clippedControls(sheet), QStringList());
}

TEST_F(DeleteConfirmationTest, SignalsWhatTheCopyThatStaysIsToBeGiven) {
    DeleteConfirmation sheet;
    sheet.setFacts(counted());
    QSignalSpy deletions(&sheet, &DeleteConfirmation::deleteRequested);
    test::open(sheet);
    test::press(sheet, Qt::Key_P, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !sheet.mergeChoice().places; }));
    child<QPushButton>(sheet, "delConfOkButton").click();
    ASSERT_EQ(deletions.count(), 1);
    EXPECT_EQ(deletions[0][2].value<MergeChoice>(),
              (MergeChoice{.places = false, .history = true, .fillIns = false}));
}

TEST_F(DeleteConfirmationTest, VisitsTheBoxesOfAMergeBehindTheFiles) {
    DeleteConfirmation sheet;
    sheet.setFacts(counted());
    test::open(sheet);
    const QStringList expected{QStringLiteral("delConfCancelButton"), QStringLiteral("delConfOkButton"),
                               QStringLiteral("delConfFileCK"),       QStringLiteral("delConfPlacesCK"),
                               QStringLiteral("delConfHistoryCK"),    QStringLiteral("delConfFillInCK")};
    EXPECT_EQ(test::tabOrder(sheet), expected);
}

} // namespace
} // namespace songsweep
