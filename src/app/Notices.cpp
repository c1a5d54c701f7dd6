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
#include "platform/Words.h"
#include "restore/FinishProc.h"
#include "restore/InterruptedCleanup.h"
#include "restore/RestoreProc.h"
#include "restore/RestoreTexts.h"
#include "sound/SoundComparison.h"

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
        Countable counted;
    };
    std::string text;
    for (const Word& word : {Word{same, countable("Notices", "%1 same", "1 same")},
                             {differs, countable("Notices", "%1 different", "1 different")},
                             {unsure, countable("Notices", "%1 unsure", "1 unsure")},
                             {notReadable, countable("Notices", "%1 not readable", "1 not readable")}}) {
        const auto copies = std::count_if(findings.begin(), findings.end(), [&](const SoundFinding& each) {
            return each.verdict == word.verdict;
        });
        if (copies > 0) text += (text.empty() ? "" : ", ") + countedWords(word.counted, copies);
    }
    return text + ".";
}

std::string searchedText(int tracks) {
    return countedWords("Notices", "%1 tracks were searched.", "1 track was searched.", tracks);
}

int fieldCount(const SearchParameters& parameters) {
    return (parameters.issamename ? 1 : 0) + (parameters.issameartist ? 1 : 0) +
           (parameters.issamealbum ? 1 : 0) + (parameters.issametime ? 1 : 0);
}

std::string missingTitle(const MissingFiles& missing) {
    if (missing.files == 1) return words("Notices", "The file was not found");
    const std::string all = numberText(missing.files);
    if (missing.areAll()) return filled(words("Notices", "None of the %1 files were found"), {all});
    const auto found = static_cast<std::size_t>(missing.files - missing.missing);
    return filled(countedWords("Notices", "Only %1 of the %2 files were found",
                               "Only 1 of the %2 files was found", found),
                  {all});
}

std::optional<std::uint64_t> trashedBytes(const std::string& record) {
    const auto cleanup = cleanupOfRecord(record);
    if (!cleanup || !cleanup->end) return std::nullopt;
    return cleanup->end->bytes;
}

std::function<std::vector<std::string>()> given(std::vector<std::string> lines) {
    if (lines.empty()) return {};
    return [kept = std::move(lines)] { return kept; };
}

} // namespace

void Notices::tellDeletion(std::shared_ptr<const DeleteReport> report) {
    if (report->outcomes.empty() || !report->notBegun.empty()) return; // nothing was done
    m_unfinished.clear();
    m_trashedFile = aTrashedFile(*report);
    m_backup = report->backup;
    m_record = report->record;
    const DeletionSummary summary = summaryOf(*report, trashedBytes(report->record));
    const bool isWarning = !report->allDealtWith();
    m_details = [kept = std::move(report)] { return detailsOf(*kept); };
    show({summary.title, summary.rest, summary.line(), isWarning, {}});
}

void Notices::tellRestore(const RestoreAnswer& answer) {
    if (!answer.problem.empty()) return; // nothing was done, as the sheet says
    m_unfinished.clear();
    m_details = given(restoreTexts::details(answer.report));
    m_trashedFile.clear();
    m_backup = answer.report.backup;
    m_record.clear();
    const std::string title = restoreTexts::title(answer.report);
    const std::string rest = restoreTexts::rest(answer.report);
    show({title, rest, rest.empty() ? title : title + ", " + rest, !answer.report.allDealtWith(), {}});
}

void Notices::tellSounds(const ComparedSounds& sounds) {
    m_details = given(sounds.unread);
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
    const std::string title = countedWords("Notices", "The sound of %1 files was compared",
                                           "The sound of 1 file was compared", sounds.findings.size());
    const std::string rest = countsOf(sounds.findings);
    show({title, rest, title + ": " + rest, false, {}});
}

void Notices::tellInterruption(const InterruptedCleanup& found) {
    const auto date = parseLibraryDate(found.date);
    const std::string when = date ? shortDateTime(*date) : found.date;
    m_details = {};
    m_trashedFile.clear();
    m_backup = found.backup;
    m_record = found.canBePutBack() ? found.record : std::string();
    m_unfinished = found.filesToTrash ? found.record : std::string();
    const std::string title = filled(found.kind == RecordHeading::Kind::restore
                                         ? words("Notices", "The restore of %1 was interrupted")
                                         : words("Notices", "The deletion of %1 was interrupted"),
                                     {when});
    std::string rest = found.canBePutBack()
                           ? filled(words("Notices", "%1 can be put back."), {found.whatCanBePutBack()})
                           : words("Notices", "Nothing of it is left to put back.");
    if (found.filesToTrash)
        rest += " " + filled(words("Notices", "If you finish it, %1."), {found.whatFinishingDoes()});
    show({title, rest, title + ". " + rest, true, {}});
}

void Notices::tellUnreadFiles(const std::string& title, std::vector<std::string> lines) {
    m_details = given(std::move(lines));
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
    show({title, "", title, true, {}});
}

void Notices::tellFinishing() {
    const std::string title = words("Notices", "Finishing the deletion");
    m_view.showNotice({title, "", title, false, {}});
}

/// Where it failed, it can be tried again.
void Notices::tellFinished(const std::shared_ptr<FinishAnswer>& answer) {
    if (answer->problem.empty()) {
        auto report = std::make_shared<DeleteReport>(finishedReport(answer->cleanup));
        logReport(*report, m_services.log);
        return tellDeletion(std::move(report));
    }
    const std::string title = words("Notices", "The deletion could not be finished");
    show({title, answer->problem + ".", title + ": " + answer->problem, true, {}});
}

void Notices::forget() {
    m_details = {};
    m_trashedFile.clear();
    m_backup.clear();
    m_record.clear();
    m_unfinished.clear();
}

void Notices::tellNoDuplicates(int tracks, const SearchParameters& parameters, const MissingFiles& missing) {
    forget();
    const std::string title = words("Notices", "No duplicates found");
    std::string rest = searchedText(tracks) + " " + searchSummary(parameters, ChosenPlaylist::searched) + ".";
    if (missing.areMost()) rest += " " + missingTitle(missing) + ".";
    Notice notice{title, rest, title + ". " + rest, false, {}};
    if (missing.areMost()) notice.actions.push_back(NoticeAction::chooseFilesFolder);
    if (fieldCount(parameters) > 1) notice.actions.push_back(NoticeAction::searchWithFewer);
    show(std::move(notice));
}

void Notices::tellMissingFiles(const MissingFiles& missing) {
    forget();
    const std::string title = missingTitle(missing);
    const std::string rest = words("Notices", "If they came from another machine, tell where they are now.");
    show({title, rest, title + ".", true, {NoticeAction::chooseFilesFolder}});
}

void Notices::show(Notice notice) {
    if (m_details) notice.actions.push_back(NoticeAction::details);
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
        return m_view.showNoticeDetails(m_details());
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
