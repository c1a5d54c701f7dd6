// SPDX-License-Identifier: MIT
#include "app/AboutDialog.h"
#include "app/Alerts.h"
#include "app/ParametersDialog.h"
#include "app/ProgressSheet.h"
#include "delete/DeleteConfirmation.h"
#include "dupes/MarkDialog.h"
#include "restore/RestoreDialog.h"
#include "support/ThemedTest.h"
#include "support/Widgets.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace songsweep {
namespace {

struct Opener {
    const char* name;
    std::function<std::unique_ptr<QDialog>()> make;
    int width; ///< of a 13 px font
};

std::unique_ptr<QDialog> deleteConfirmation() {
    auto sheet = std::make_unique<DeleteConfirmation>();
    DeleteConfirmationFacts facts;
    facts.tracks = 123;
    facts.filesToTrash = facts.sharedFiles = facts.missingFiles = facts.refusedFiles = 123;
    facts.groupsLosingEveryCopy = facts.groupsLosingEveryFile = 123;
    facts.bytesToTrash = 123'456'789'012;
    facts.embeddedLibrary = true;
    sheet->setFacts(facts);
    test::child<QAbstractButton>(*sheet, "delConfFileCK").click();
    return sheet;
}

std::unique_ptr<QDialog> markDialog() {
    auto dialog = std::make_unique<MarkDialog>();
    dialog->selectMissingItems();
    dialog->fillKinds({std::string(300, 'W')});
    dialog->setPreview({.marked = 123456, .total = 1000000, .inForce = false, .byHand = 123456});
    return dialog;
}

std::unique_ptr<QDialog> parametersDialog() {
    auto dialog = std::make_unique<ParametersDialog>();
    dialog->addPlaylist(std::string(300, 'W'));
    dialog->selectPlaylist(0);
    for (const char* name : {"paramSameNameCK", "paramSameArtistCK", "paramSameTimeCK"})
        test::child<QAbstractButton>(*dialog, name).click();
    return dialog;
}

std::unique_ptr<QDialog> restoreDialog() {
    auto dialog = std::make_unique<RestoreDialog>();
    CleanupListing listing;
    listing.cleanups.resize(20);
    for (CleanupSummary& cleanup : listing.cleanups) {
        cleanup.heading.date = "2026-12-31T23:59:59Z";
        cleanup.end = RecordEnd{RecordEnd::How::complete, "", 123456, 123456, 123'456'789'012};
    }
    dialog->setListing(listing, 0);
    RestoreAnswer answer;
    answer.report.tracks.resize(123);
    answer.report.notes = {std::string(40, 'W') + " " + std::string(40, 'W')};
    for (RestoredTrack& track : answer.report.tracks) {
        track.entry = RestoredTrack::Entry::restored;
        track.setFileGone();
    }
    dialog->setForeseen(answer);
    return dialog;
}

class DialogLook : public test::ThemedTest, public testing::WithParamInterface<Opener> {};

TEST_P(DialogLook, IsAsWideAsDesigned) {
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(dialog->width(), GetParam().width);
}

TEST_P(DialogLook, CannotBeMinimised) {
    const Qt::WindowFlags flags = GetParam().make()->windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint)) << "the window manager would add its own";
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
}

TEST_P(DialogLook, ClipsNothingAtTwiceTheFontSize) {
    setFont(2, 100);
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
    EXPECT_GE(dialog->width(), 2 * GetParam().width);
}

TEST_P(DialogLook, ClipsNothingInAWiderFont) {
    setFont(1, 120);
    const auto dialog = GetParam().make();
    dialog->show();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
}

TEST_P(DialogLook, GrowsWhenTheFontChangesWhileItIsOpen) {
    const auto dialog = GetParam().make();
    dialog->show();
    setFont(2, 100);
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(test::clippedControls(*dialog), QStringList());
    EXPECT_GE(dialog->width(), 2 * GetParam().width);
}

INSTANTIATE_TEST_SUITE_P(
    , DialogLook,
    testing::Values(Opener{"Parameters", parametersDialog, 440}, Opener{"Mark", markDialog, 500},
                    Opener{"Delete", deleteConfirmation, 464}, Opener{"Restore", restoreDialog, 560},
                    Opener{"Progress", [] { return std::make_unique<ProgressSheet>(); }, 400},
                    Opener{"About", [] { return std::make_unique<AboutDialog>(); }, 380}),
    [](const testing::TestParamInfo<Opener>& each) { return std::string(each.param.name); });

} // namespace
} // namespace songsweep
