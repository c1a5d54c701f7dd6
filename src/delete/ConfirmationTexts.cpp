// SPDX-License-Identifier: MIT
#include "delete/ConfirmationTexts.h"

#include "library/ValueFormats.h"
#include "merge/MergeWords.h"
#include "theme/CountedText.h"

#include <QCoreApplication>
#include <QStringList>

namespace songsweep::confirmationTexts {

namespace {

int going(const DeleteConfirmationFacts& facts) { return facts.tracks - facts.keptTracks; }

/// "none" for nothing.
QString number(const DeleteConfirmationFacts& facts, std::string (*words)(const MergeCounts&)) {
    if (!facts.merge) return {};
    const std::string text = words(*facts.merge);
    return text.empty() ? QStringLiteral("none") : QString::fromStdString(text);
}

} // namespace

QString heading(const DeleteConfirmationFacts& facts) {
    if (facts.tracks == 0) return QCoreApplication::translate("Confirmation", "No tracks are marked");
    if (going(facts) == 0) return QCoreApplication::translate("Confirmation", "No track can be deleted");
    return facts.embeddedLibrary ? countedText("Confirmation", "Delete %1 tracks from the library?",
                                               "Delete 1 track from the library?", going(facts))
                                 : countedText("Confirmation", "Delete %1 tracks from iTunes?",
                                               "Delete 1 track from iTunes?", going(facts));
}

QString explanation(const DeleteConfirmationFacts& facts) {
    if (going(facts) == 0) return QCoreApplication::translate("Confirmation", "Nothing will be deleted.");
    QString undoing =
        facts.embeddedLibrary
            ? QCoreApplication::translate("Confirmation", "A copy of the library file is kept beside it.")
            : QCoreApplication::translate("Confirmation", "iTunes cannot undo this.");
    if (facts.mergeOffered) return undoing; // A box of its own tells of playlists.
    return countedText("Confirmation", "They also leave every playlist.", "It also leaves every playlist.",
                       going(facts)) +
           QLatin1Char(' ') + undoing;
}

QString filesGo(const DeleteConfirmationFacts& facts) {
    return countedText("Confirmation", "Their files go to the Trash.", "Its file goes to the Trash.",
                       going(facts));
}

QString fileOption(const DeleteConfirmationFacts& facts) {
    return countedText("Confirmation", "Move their &files to the Trash too",
                       "Move its &file to the Trash too", going(facts));
}

QString placesNumber(const DeleteConfirmationFacts& facts) { return number(facts, placesWords); }

QString historyNumber(const DeleteConfirmationFacts& facts) { return number(facts, historyWords); }

QString fillInNumber(const DeleteConfirmationFacts& facts) { return number(facts, fillInWords); }

QString iTunesLine(const DeleteConfirmationFacts& facts) {
    if (!facts.mergeOffered || facts.embeddedLibrary) return {};
    return QStringLiteral("In iTunes it goes to the end of each playlist, and its date added stays.");
}

QString unmergedLine(const DeleteConfirmationFacts& facts) {
    return facts.merge ? QString::fromStdString(leftWords(*facts.merge)) : QString();
}

QString deleteButton(const DeleteConfirmationFacts& facts) {
    if (going(facts) == 0) return QCoreApplication::translate("Confirmation", "&Delete");
    return countedText("Confirmation", "&Delete %1 tracks", "&Delete 1 track", going(facts));
}

QString filesStayLine(const DeleteConfirmationFacts& facts) {
    return countedText("Confirmation", "The files stay where they are.", "The file stays where it is.",
                       going(facts));
}

QString filesPendingLine() { return QCoreApplication::translate("Confirmation", "Looking at the files..."); }

QString libraryUnknownLine(const DeleteConfirmationFacts& facts) {
    return countedText("Confirmation", "The rest of the library could not be read, so the files stay.",
                       "The rest of the library could not be read, so the file stays.", going(facts));
}

QString trashLine(const DeleteConfirmationFacts& facts, bool leaveShared) {
    const int files = facts.filesToTrash + (leaveShared ? 0 : facts.sharedFiles);
    const std::int64_t bytes = facts.bytesToTrash + (leaveShared ? 0 : facts.sharedBytes);
    if (files == 0) return {};
    return countedText("Confirmation", "%1 files, %2, go to the Trash.", "1 file, %2, goes to the Trash.",
                       files)
        .arg(megabytes(bytes));
}

QString sharedLine(const DeleteConfirmationFacts& facts, bool leaveShared) {
    if (facts.sharedFiles == 0) return {};
    if (leaveShared)
        return countedText("Confirmation", "%1 files are shared with tracks that stay, and are kept.",
                           "1 file is shared with a track that stays, and is kept.", facts.sharedFiles);
    return countedText("Confirmation", "%1 files are shared with tracks that stay, and go too.",
                       "1 file is shared with a track that stays, and goes too.", facts.sharedFiles);
}

QString missingLine(const DeleteConfirmationFacts& facts) {
    if (facts.missingFiles == 0) return {};
    return countedText("Confirmation", "%1 files are missing already.", "1 file is missing already.",
                       facts.missingFiles);
}

QString refusedLine(const DeleteConfirmationFacts& facts) {
    if (facts.refusedFiles == 0) return {};
    return countedText("Confirmation", "%1 files cannot go to the Trash, and are kept.",
                       "1 file cannot go to the Trash, and is kept.", facts.refusedFiles);
}

QString warning(const DeleteConfirmationFacts& facts, FilesToTrash files) {
    QStringList sentences;
    if (const int lost = facts.songsLost(files); lost > 0)
        sentences << countedText("Confirmation", "No copy of %1 songs will be left.",
                                 "No copy of 1 song will be left.", lost);
    if (facts.lastOfRecordings > 0)
        sentences << countedText("Confirmation", "%1 marked copies are the last of their recordings.",
                                 "1 marked copy is the last of its recording.", facts.lastOfRecordings);
    if (!sentences.empty()) return sentences.join(QLatin1Char('\n'));
    if (facts.libraryInUse)
        return QCoreApplication::translate("Confirmation", "The library cannot be written:\n%1.")
            .arg(QString::fromStdString(facts.libraryObstacle));
    if (!facts.libraryObstacle.empty())
        return QCoreApplication::translate("Confirmation", "The library cannot be written.");
    if (facts.keptTracks == 0) return {};
    return countedText("Confirmation", "%1 tracks share their IDs with others, and stay.",
                       "1 track shares its ID with another one, and stays.", facts.keptTracks);
}

QString megabytes(std::int64_t bytes) {
    return QString::fromStdString(songsweep::megabytes(static_cast<std::uint64_t>(bytes)));
}

} // namespace songsweep::confirmationTexts
