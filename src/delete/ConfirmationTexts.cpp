// SPDX-License-Identifier: MIT
#include "delete/ConfirmationTexts.h"

#include "library/ValueFormats.h"

#include <QLocale>
#include <QStringList>

namespace songsweep::confirmationTexts {

namespace {

/// One of two wordings by the count; "%1" in the second is the count.
QString worded(int count, const QString& one, const QString& many) {
    return count == 1 ? one : QString(many).replace(QStringLiteral("%1"), QLocale().toString(count));
}

int going(const DeleteConfirmationFacts& facts) { return facts.tracks - facts.keptTracks; }

} // namespace

QString heading(const DeleteConfirmationFacts& facts) {
    if (facts.tracks == 0) return QStringLiteral("No tracks are marked");
    if (going(facts) == 0) return QStringLiteral("No track can be deleted");
    const QString where = facts.embeddedLibrary ? QStringLiteral("the library") : QStringLiteral("iTunes");
    return worded(going(facts), QStringLiteral("Delete 1 track from "),
                  QStringLiteral("Delete %1 tracks from ")) +
           where + QStringLiteral("?");
}

QString explanation(const DeleteConfirmationFacts& facts) {
    if (going(facts) == 0) return QStringLiteral("Nothing will be deleted.");
    return worded(going(facts), QStringLiteral("It also leaves every playlist. "),
                  QStringLiteral("They also leave every playlist. ")) +
           (facts.embeddedLibrary ? QStringLiteral("A copy of the library file is kept beside it.")
                                  : QStringLiteral("iTunes cannot undo this."));
}

QString filesGo(const DeleteConfirmationFacts& facts) {
    return worded(going(facts), QStringLiteral("Its file goes to the Trash."),
                  QStringLiteral("Their files go to the Trash."));
}

QString fileOption(const DeleteConfirmationFacts& facts) {
    return worded(going(facts), QStringLiteral("Move its &file to the Trash too"),
                  QStringLiteral("Move their &files to the Trash too"));
}

QString deleteButton(const DeleteConfirmationFacts& facts) {
    if (going(facts) == 0) return QStringLiteral("&Delete");
    return worded(going(facts), QStringLiteral("&Delete 1 track"), QStringLiteral("&Delete %1 tracks"));
}

QString filesStayLine(const DeleteConfirmationFacts& facts) {
    return worded(going(facts), QStringLiteral("The file stays where it is."),
                  QStringLiteral("The files stay where they are."));
}

QString filesPendingLine() { return QStringLiteral("Looking at the files..."); }

QString libraryUnknownLine(const DeleteConfirmationFacts& facts) {
    return worded(going(facts),
                  QStringLiteral("The rest of the library could not be read, so the file stays."),
                  QStringLiteral("The rest of the library could not be read, so the files stay."));
}

QString trashLine(const DeleteConfirmationFacts& facts, bool leaveShared) {
    const int files = facts.filesToTrash + (leaveShared ? 0 : facts.sharedFiles);
    const std::int64_t bytes = facts.bytesToTrash + (leaveShared ? 0 : facts.sharedBytes);
    if (files == 0) return {};
    return worded(files, QStringLiteral("1 file, %2, goes to the Trash."),
                  QStringLiteral("%1 files, %2, go to the Trash."))
        .replace(QStringLiteral("%2"), megabytes(bytes));
}

QString sharedLine(const DeleteConfirmationFacts& facts, bool leaveShared) {
    if (facts.sharedFiles == 0) return {};
    if (leaveShared)
        return worded(facts.sharedFiles,
                      QStringLiteral("1 file is shared with a track that stays, and is kept."),
                      QStringLiteral("%1 files are shared with tracks that stay, and are kept."));
    return worded(facts.sharedFiles,
                  QStringLiteral("1 file is shared with a track that stays, and goes too."),
                  QStringLiteral("%1 files are shared with tracks that stay, and go too."));
}

QString missingLine(const DeleteConfirmationFacts& facts) {
    if (facts.missingFiles == 0) return {};
    return worded(facts.missingFiles, QStringLiteral("1 file is missing already."),
                  QStringLiteral("%1 files are missing already."));
}

QString refusedLine(const DeleteConfirmationFacts& facts) {
    if (facts.refusedFiles == 0) return {};
    return worded(facts.refusedFiles, QStringLiteral("1 file cannot go to the Trash, and is kept."),
                  QStringLiteral("%1 files cannot go to the Trash, and are kept."));
}

QString warning(const DeleteConfirmationFacts& facts, FilesToTrash files) {
    QStringList sentences;
    if (const int lost = facts.songsLost(files); lost > 0)
        sentences << worded(lost, QStringLiteral("No copy of 1 song will be left."),
                            QStringLiteral("No copy of %1 songs will be left."));
    if (facts.lastOfRecordings > 0)
        sentences << worded(facts.lastOfRecordings,
                            QStringLiteral("1 marked copy is the last of its recording."),
                            QStringLiteral("%1 marked copies are the last of their recordings."));
    if (!sentences.empty()) return sentences.join(QLatin1Char('\n'));
    if (facts.libraryInUse)
        return QStringLiteral("The library cannot be written:\n%1.")
            .arg(QString::fromStdString(facts.libraryObstacle));
    if (!facts.libraryObstacle.empty()) return QStringLiteral("The library cannot be written.");
    if (facts.keptTracks == 0) return {};
    return worded(facts.keptTracks, QStringLiteral("1 track shares its ID with another one, and stays."),
                  QStringLiteral("%1 tracks share their IDs with others, and stay."));
}

QString megabytes(std::int64_t bytes) {
    return QString::fromStdString(songsweep::megabytes(static_cast<std::uint64_t>(bytes)));
}

} // namespace songsweep::confirmationTexts
