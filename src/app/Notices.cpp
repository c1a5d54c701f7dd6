// SPDX-License-Identifier: MIT
#include "app/Notices.h"

#include "app/FinishedReport.h"
#include "app/LibraryWarnings.h"
#include "app/SearchSummary.h"
#include "delete/DeletionSummary.h"
#include "library/ValueFormats.h"
#include "libraryfile/CleanupHistory.h"
#include "platform/Desktop.h"
#include "platform/Log.h"
#include "restore/FinishProc.h"
#include "restore/InterruptedCleanup.h"
#include "restore/RestoreProc.h"
#include "restore/RestoreTexts.h"
#include "sound/SoundComparison.h"

#include <QLocale>

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

std::string aTrashedFile(const DeleteReport& report) {
    for (const DeleteOutcome& outcome : report.outcomes)
        if (outcome.trash) return outcome.trash->path();
    return {};
}

/// "98 same, 3 different, 1 unsure, 2 not readable."
std::string countsOf(const std::vector<SoundFinding>& findings) {
    using enum SoundVerdict;
    struct Word {
        SoundVerdict verdict;
        const char* word;
    };
    std::string text;
    for (const Word& word :
         {Word{same, "same"}, {differs, "different"}, {unsure, "unsure"}, {notReadable, "not readable"}}) {
        const auto copies = std::count_if(findings.begin(), findings.end(), [&](const SoundFinding& each) {
            return each.verdict == word.verdict;
        });
        if (copies > 0) text += (text.empty() ? "" : ", ") + std::to_string(copies) + " " + word.word;
    }
    return text + ".";
}

std::string grouped(int number) { return QLocale().toString(number).toStdString(); }

std::string countedTracks(int tracks) {
    return tracks == 1 ? "1 track was" : grouped(tracks) + " tracks were";
}

int fieldCount(const SearchParameters& parameters) {
    return (parameters.issamename ? 1 : 0) + (parameters.issameartist ? 1 : 0) +
           (parameters.issamealbum ? 1 : 0) + (parameters.issametime ? 1 : 0);
}

std::string missingTitle(const MissingFiles& missing) {
    if (missing.files == 1) return "The file was not found";
    const std::string all = "of the " + grouped(missing.files) + " files ";
    if (missing.areAll()) return "None " + all + "were found";
    const int found = missing.files - missing.missing;
    return "Only " + grouped(found) + " " + all + (found == 1 ? "was" : "were") + " found";
}

std::optional<std::uint64_t> trashedBytes(const std::string& record) {
    const auto cleanup = cleanupOfRecord(record);
    if (!cleanup || !cleanup->end) return std::nullopt;
    return cleanup->end->bytes;
}

} // namespace

void Notices::tellDeletion(const DeleteReport& report) {
    if (report.outcomes.empty() || !report.notBegun.empty()) return; // nothing was done
    m_unfinished.clear();
    m_details = detailsOf(report);
    m_trashedFile = aTrashedFile(report);
    m_backup = report.backup;
    m_record = report.record;
    const DeletionSummary summary = summaryOf(report, trashedBytes(report.record));
    show({summary.title, summary.rest, summary.line(), !report.allDealtWith(), {}});
}

void Notices::tellRestore(const RestoreAnswer& answer) {
    if (!answer.problem.empty()) return; // nothing was done, as the sheet says
    m_unfinished.clear();
    m_details = restoreTexts::details(answer.report);
    m_trashedFile.clear();
    m_backup = answer.report.backup;
    m_record.clear();
    const std::string title = restoreTexts::title(answer.report);
    const std::string rest = restoreTexts::rest(answer.report);
    show({title, rest, rest.empty() ? title : title + ", " + rest, !answer.report.allDealtWith(), {}});
}

void Notices::tellSounds(const ComparedSounds& sounds) {
    m_details = sounds.unread;
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
    const std::string title = "The sound of " + counted(sounds.findings.size(), "file") + " was compared";
    const std::string rest = countsOf(sounds.findings);
    show({title, rest, title + ": " + rest, false, {}});
}

void Notices::tellInterruption(const InterruptedCleanup& found) {
    const auto date = parseLibraryDate(found.date);
    const std::string when = date ? shortDateTime(*date) : found.date;
    const char* const what =
        found.kind == RecordHeading::Kind::restore ? "The restore of " : "The deletion of ";
    m_details.clear();
    m_trashedFile.clear();
    m_backup = found.backup;
    m_record = found.canBePutBack() ? found.record : std::string();
    m_unfinished = found.filesToTrash ? found.record : std::string();
    const std::string title = what + when + " was interrupted";
    std::string rest = found.canBePutBack() ? found.whatCanBePutBack() + " can be put back."
                                            : "Nothing of it is left to put back.";
    if (found.filesToTrash) rest += " If you finish it, " + found.whatFinishingDoes() + ".";
    show({title, rest, title + ". " + rest, true, {}});
}

void Notices::tellUnreadFiles(const std::string& title, std::vector<std::string> lines) {
    m_details = std::move(lines);
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
    show({title, "", title, true, {}});
}

void Notices::tellFinishing() {
    m_view.showNotice({"Finishing the deletion", "", "Finishing the deletion", false, {}});
}

/// Where it failed, it can be tried again.
void Notices::tellFinished(const std::shared_ptr<FinishAnswer>& answer) {
    if (answer->problem.empty()) {
        const DeleteReport report = finishedReport(answer->cleanup);
        logReport(report, m_services.log);
        return tellDeletion(report);
    }
    const std::string title = "The deletion could not be finished";
    show({title, answer->problem + ".", title + ": " + answer->problem, true, {}});
}

void Notices::forget() {
    m_details.clear();
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
}

void Notices::tellNoDuplicates(int tracks, const SearchParameters& parameters, const MissingFiles& missing) {
    forget();
    const std::string title = "No duplicates found";
    std::string rest =
        countedTracks(tracks) + " searched. " + searchSummary(parameters, ChosenPlaylist::searched) + ".";
    if (missing.areMost()) rest += " " + missingTitle(missing) + ".";
    Notice notice{title, rest, title + ". " + rest, false, {}};
    if (missing.areMost()) notice.actions.push_back(NoticeAction::chooseFilesFolder);
    if (fieldCount(parameters) > 1) notice.actions.push_back(NoticeAction::searchWithFewer);
    show(std::move(notice));
}

void Notices::tellMissingFiles(const MissingFiles& missing) {
    forget();
    const std::string title = missingTitle(missing);
    const std::string rest = "If they came from another machine, tell where they are now.";
    show({title, rest, title + ".", true, {NoticeAction::chooseFilesFolder}});
}

void Notices::show(Notice notice) {
    if (!m_details.empty()) notice.actions.push_back(NoticeAction::details);
    if (!m_trashedFile.empty()) notice.actions.push_back(NoticeAction::showTrash);
    if (!m_backup.empty()) notice.actions.push_back(NoticeAction::showBackup);
    if (!m_unfinished.empty()) notice.actions.push_back(NoticeAction::finish);
    if (!m_record.empty()) notice.actions.push_back(NoticeAction::restore);
    m_view.showNotice(notice);
}

void Notices::close() { m_view.hideNotice(); }

void Notices::noticeActionClick(NoticeAction action) {
    switch (action) {
    case NoticeAction::details:
        return m_view.showNoticeDetails(m_details);
    case NoticeAction::showTrash:
        return showInFileManager(m_trashedFile);
    case NoticeAction::showBackup:
        return showInFileManager(m_backup);
    case NoticeAction::finish:
        return m_services.finish(m_unfinished);
    case NoticeAction::restore:
        return m_services.restore(m_record);
    case NoticeAction::chooseFilesFolder:
    case NoticeAction::searchWithFewer:
        return;
    }
}

void Notices::showInFileManager(const std::string& path) {
    const Result<void> shown = m_services.desktop.showInFileManager(path);
    if (!shown) m_services.log.line("Cannot show " + path + ": " + shown.error().message);
}

} // namespace songsweep
