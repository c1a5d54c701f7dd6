// SPDX-License-Identifier: MIT
#pragma once

#include "app/AboutDialog.h"
#include "app/ParametersDialog.h"
#include "app/ProgressSheet.h"
#include "delete/DeleteConfirmation.h"
#include "dupes/MarkDialog.h"
#include "restore/RestoreDialog.h"
#include "support/Widgets.h"

#include <QAbstractButton>

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace songsweep::test {

/// A dialog with the longest texts that it may have to show.
struct Opener {
    const char* name;
    std::function<std::unique_ptr<QDialog>()> make;
    int width; ///< of a 13 px font
};

inline std::unique_ptr<QDialog> deleteConfirmation() {
    auto sheet = std::make_unique<DeleteConfirmation>();
    DeleteConfirmationFacts facts;
    facts.tracks = 123;
    facts.filesToTrash = facts.sharedFiles = facts.missingFiles = facts.refusedFiles = 123;
    facts.groupsLosingEveryCopy = facts.groupsLosingEveryFile = 123;
    facts.bytesToTrash = 123'456'789'012;
    facts.embeddedLibrary = true;
    sheet->setFacts(facts);
    child<QAbstractButton>(*sheet, "delConfFileCK").click();
    return sheet;
}

inline std::unique_ptr<QDialog> mergingConfirmation() {
    auto sheet = std::make_unique<DeleteConfirmation>();
    DeleteConfirmationFacts facts;
    facts.tracks = facts.filesToTrash = 123;
    facts.embeddedLibrary = facts.mergeOffered = true;
    facts.merge = MergeCounts{.places = 1234,
                              .playlists = 123,
                              .plays = 12345,
                              .ratings = 1234,
                              .fillIns = 1234,
                              .keepSeveral = 1234,
                              .unclear = 0};
    sheet->setFacts(facts);
    return sheet;
}

inline std::unique_ptr<QDialog> markDialog() {
    auto dialog = std::make_unique<MarkDialog>();
    dialog->selectMissingItems();
    dialog->fillKinds({std::string(300, 'W')});
    dialog->setPreview({.marked = 123456, .total = 1000000, .inForce = false, .byHand = 123456});
    return dialog;
}

inline std::unique_ptr<QDialog> parametersDialog() {
    auto dialog = std::make_unique<ParametersDialog>();
    dialog->addPlaylist(std::string(300, 'W'));
    dialog->selectPlaylist(0);
    for (const char* name : {"paramSameNameCK", "paramSameArtistCK", "paramSameTimeCK"})
        child<QAbstractButton>(*dialog, name).click();
    return dialog;
}

inline std::unique_ptr<QDialog> restoreDialog() {
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

inline const std::array allDialogs = {
    Opener{"Parameters", parametersDialog, 440},
    Opener{"Mark", markDialog, 500},
    Opener{"Delete", deleteConfirmation, 464},
    Opener{"Merge", mergingConfirmation, 620},
    Opener{"Restore", restoreDialog, 560},
    Opener{"Progress", [] { return std::make_unique<ProgressSheet>(); }, 400},
    Opener{"About", [] { return std::make_unique<AboutDialog>(); }, 380}};

} // namespace songsweep::test
