// SPDX-License-Identifier: MIT
#include "app/AppController.h"

#include "dupes/LibraryFolder.h"
#include "dupes/SmallDifference.h"
#include "platform/Desktop.h"
#include "platform/FileUrl.h"
#include "platform/Log.h"
#include "restore/InterruptedCleanup.h"
#include "sound/SoundComparison.h"

#include <array>
#include <chrono>
#include <type_traits>

namespace songsweep {

namespace {

/// The code of an alert's second button.
constexpr int alertSecondButtonReturn = 1001;

std::int64_t nowInNanoseconds() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

/// Hands the event's payload to its owner, where it is of the kind that is taken.
template <class Owner, class Payload>
void take(const WorkerEvent& event, Owner& owner, void (Owner::*use)(Payload)) {
    if (const auto* payload = std::get_if<std::decay_t<Payload>>(&event.payload)) (owner.*use)(*payload);
}

/// Whether the row of each event stands at the event's number.
template <class Table>
consteval bool hasEveryEventInItsPlace(const Table& table) {
    for (std::size_t place = 0; place < table.size(); ++place)
        if (static_cast<std::size_t>(table[place].name) != place) return false;
    return table.size() == eventCount;
}

} // namespace

AppController::AppController(ControllerServices services, ControllerViews views)
    : m_services(std::move(services))
    , m_view(views.application)
    , m_library(m_services, views, {m_center, m_queue})
    , m_progress(views.progress, views.formprogress)
    , m_results(views.results)
    , m_marks(m_results, views.mark, m_services.log)
    , m_trackActions(m_services)
    , m_search(m_services, views, {m_center, m_queue}, m_results, m_progress)
    , m_deletion(m_services, views, {m_center, m_queue}, m_results, m_search.readers(), m_progress,
                 [this] { reportIdle(); })
    , m_restoring(m_services, views.restore, {m_center, m_queue})
    , m_notices({m_services.desktop, m_services.log, [this](const auto& record) { beginRestore(record); },
                 [this](const auto& record) { finishCleanup(record); }},
                views.notice)
    , m_queue(m_center, m_services.log) {
    m_queue.setIdleHandler([this] { reportIdle(); });
}

AppController::~AppController() {
    m_deletion.stop();
    m_restoring.stop();
    m_library.stop();
}

void AppController::reportIdle() const {
    if (m_idleHandler) m_idleHandler();
}

// Start-up and end.

void AppController::awakeFromNib(const std::function<bool()>& redirectLog) {
    // A log that could not be redirected says so itself, and start-up goes on.
    if (redirectLog) redirectLog();
    m_services.log.line("Songsweep " + m_services.version);
    m_center.setObserver([this](const WorkerEvent& event) { threadHandlerSingleFinished2(event); });
    m_search.readers().setLibraryModifiedDate(nowInNanoseconds());
    m_view.setAboutLabel("Songsweep " + m_services.version);
}

bool AppController::applicationShouldTerminate() {
    m_progress.stop();
    m_deletion.stop();
    m_restoring.stop();
    m_library.stop();
    m_queue.cancelAllOperations();
    m_center.close();
    return true;
}

bool AppController::applicationShouldHandleReopen(bool hasVisibleWindows) {
    if (!hasVisibleWindows) m_view.showMainWindow();
    return hasVisibleWindows;
}

void AppController::launchURL(const std::string& address) {
    const Result<void> opened = m_services.desktop.openUrl(address);
    if (!opened) m_services.log.line("Cannot open " + address + ": " + opened.error().message);
}

void AppController::guideMenuClick() {
    const std::optional<std::string> guide = m_services.guide();
    launchURL(guide ? fileUrl(*guide) : links::help);
}

void AppController::alertCantAccessDidEnd(int returnCode) {
    if (returnCode == alertSecondButtonReturn) launchURL(links::cantAccessITunes);
}

// Searching.

void AppController::startButtonClick() {
    if (isDeleting()) return;
    if (m_library.isMissing()) return m_library.choose();
    m_search.startButtonClick(m_library.isReading() ? Search::Playlists::whenRead : Search::Playlists::now);
}

void AppController::paramOkButtonClick(SearchParameters choices) {
    if (isDeleting() || m_library.isReading()) return;
    m_notices.close();
    m_search.paramOkButtonClick(std::move(choices));
}

std::vector<std::string> AppController::missingPaths() const { return m_search.findings().missing.sample; }

void AppController::searchWithMap(const MapRule& rule) {
    if (!mayOpenLibrary()) return m_view.beep();
    m_services.addMapRule(rule);
    paramOkButtonClick(m_search.parameters());
}

void AppController::tellSearch() {
    const MissingFiles& missing = m_search.findings().missing;
    if (tableDataSource().rows.empty())
        return m_notices.tellNoDuplicates(listedCount(), m_search.parameters(), missing);
    if (missing.areMost()) m_notices.tellMissingFiles(missing);
}

void AppController::cancelformButtonClick() {
    m_userCancelled = true;
    m_search.cancelformButtonClick();
}

bool AppController::resetForLibrary() {
    if (!isIdle()) return false;
    m_search.forgetLibrary();
    m_results.forget();
    m_notices.close();
    return true;
}

// The results table and its marks.

void AppController::setObjectValue(bool value, Column column, int row) {
    if (isIdle()) m_marks.setObjectValue(value, column, row);
}

void AppController::didClickTableColumn(Column column) {
    if (isIdle()) m_results.didClickTableColumn(column);
}

const TrackRecord* AppController::selectedRecord() const {
    // The view shows the rows of its last reload, and a deletion that was cancelled may still cut the list.
    return isDeletingRows() ? nullptr : m_results.selectedRecord();
}

void AppController::tableviewDoubleClick() {
    if (const TrackRecord* const record = selectedRecord()) m_trackActions.play(*record);
}

void AppController::showinFinderMenuClick() {
    if (const TrackRecord* const record = selectedRecord()) m_trackActions.showInFileManager(*record);
}

void AppController::markButtonClick() {
    if (isIdle()) m_marks.markButtonClick();
}

void AppController::markOkButtonClick(const MarkChoice& choice) {
    if (isIdle()) m_marks.markOkButtonClick(choice);
}

std::string AppController::folderInLibrary(const std::string& folder) const {
    if (isDeletingRows()) return folder;
    return songsweep::folderInLibrary(tableDataSource().rows, folder, m_services.files);
}

void AppController::markNone() {
    if (isIdle()) m_marks.markNone();
}

void AppController::markMenuClick(std::int32_t tag) {
    if (isIdle()) m_marks.markMenuClick(tag);
}

void AppController::undoMarks() {
    if (isIdle()) m_marks.undo();
}

void AppController::redoMarks() {
    if (isIdle()) m_marks.redo();
}

std::string AppController::markReason(const TrackRecord& record) const {
    return isDeletingRows() || m_isExporting ? std::string() : m_results.markReason(record);
}

std::vector<std::string> AppController::differences(const std::vector<TrackRecord*>& copies) const {
    std::vector<std::string> texts(copies.size());
    if (!m_search.parameters().issimilar || isDeletingRows()) return texts;
    const auto differences = smallDifferencesOf(copies, m_search.parameters());
    for (std::size_t copy = 0; copy < copies.size(); ++copy)
        for (const std::string& difference : differences[copy])
            texts[copy] += (texts[copy].empty() ? "" : ", ") + difference;
    return texts;
}

// Comparing sounds.

DisplayedList AppController::rowsToCompare(SoundScope scope) const {
    if (!isIdle()) return {};
    DisplayedList list = tableDataSource();
    if (scope == SoundScope::selected) list.rows = m_results.rowsOfSelectedGroups();
    return list;
}

void AppController::keepSounds(const DisplayedList& list, const ComparedSounds& sounds) {
    for (const std::string& line : sounds.unread)
        m_services.log.line(line);
    if (isIdle() && m_results.keepSounds(list, sounds.findings)) m_notices.tellSounds(sounds);
}

std::optional<ResultsExport> AppController::beginExport(const std::string& path) {
    if (!isIdle() || m_results.tableDataSource().rows.empty()) {
        m_view.beep();
        return std::nullopt;
    }
    const std::vector<TrackRecord*>& rows = tableDataSource().rows;
    ResultsExport results = {.path = path,
                             .format = exportFormat(path),
                             .rows = rows,
                             .tracks = m_search.libraryCount(),
                             .listed = listedCount(),
                             .notes = searchVerdict().notes,
                             .hasSounds = soundsCompared()};
    if (const auto reasons = m_results.reasonsOfRows())
        results.reason = [reasons](int row) { return reasons(static_cast<std::size_t>(row)); };
    if (m_search.parameters().issimilar)
        results.differences = [&rows, parameters = m_search.parameters()] {
            return smallDifferencesOf(rows, parameters);
        };
    m_isExporting = true;
    return results;
}

// Deleting.

void AppController::deleteButtonClick() {
    if (isIdle()) m_deletion.deleteButtonClick();
}

void AppController::deleteMarkedMenuClick() {
    if (isIdle()) setStatusLabel();
    if (isIdle() && m_results.isDeleteEnabled()) {
        deleteButtonClick();
    } else {
        m_view.beep();
    }
}

void AppController::delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles, MergeChoice merge) {
    m_deletion.delConfOkButtonClick(deleteFiles, leaveSharedFiles, merge);
}

void AppController::cancelButtonClick() {
    m_userCancelled = true;
    m_deletion.cancelButtonClick();
}

// Restoring.

void AppController::restoreMenuClick() { beginRestore({}); }

void AppController::beginRestore(const std::string& record) {
    if (isIdle() && !m_services.libraryFile().empty()) {
        m_restoring.begin(record);
    } else {
        m_view.beep();
    }
}

void AppController::finishCleanup(const std::string& record) {
    if (!isIdle() || m_services.libraryFile().empty()) return m_view.beep();
    m_notices.tellFinishing();
    m_restoring.finish(record);
}

void AppController::restoreOkButtonClick() {
    if (isIdle()) m_restoring.restoreOkButtonClick();
}

void AppController::tellDeletion() {
    if (m_deletion.lastReport()) m_notices.tellDeletion(m_deletion.lastReport());
    m_library.refresh();
}

void AppController::onLibraryRead(const WorkerEvent& event) {
    m_library.onLibraryRead(event);
    if (!m_library.isReading()) m_search.onLibraryRead();
}

void AppController::tellInterruption(const std::shared_ptr<InterruptedCleanup>& found) {
    if (isIdle() && found->library == m_services.libraryFile()) m_notices.tellInterruption(*found);
}

// The worker events: the program's main loop is the chain of these reactions.

/// One row of the dispatch; an event's place in the table is its number, so that a million of them find their
/// row at once.
struct AppController::Reaction {
    enum class Log { silent, line };

    EventName name;
    Log log;
    void (*react)(AppController& controller, const WorkerEvent& event);
};

void AppController::threadHandlerSingleFinished2(const WorkerEvent& event) {
    using A = AppController;
    using E = WorkerEvent;
    using N = EventName;
    constexpr auto silent = Reaction::Log::silent;
    constexpr auto line = Reaction::Log::line;
    static constexpr auto reactions = std::to_array<Reaction>({
        {N::addFinish, line, [](A& a, const E&) { a.m_search.onAddFinish(); }},
        {N::xmlDoneParsing, line, [](A& a, const E&) { a.m_search.onXmlDoneParsing(); }},
        {N::xmlErrorParsing, line, [](A& a, const E&) { a.m_search.onXmlError(); }},
        {N::xmlErrorProcessing, line, [](A& a, const E&) { a.m_search.onXmlError(); }},
        {N::xmlerrornotfound, line, [](A& a, const E&) { a.m_search.onXmlErrorNotFound(); }},
        {N::xmlModifiedDate, line, [](A& a, const E& e) { take(e, a.m_search, &Search::onXmlModifiedDate); }},
        {N::buildFinish, line,
         [](A& a, const E&) {
             a.m_search.onBuildFinish();
             a.tellSearch();
         }},
        {N::addCancel, line, [](A& a, const E&) { a.m_search.onAddCancel(); }},
        {N::step1, silent, [](A& a, const E& e) { take(e, a.m_search, &Search::onStep1); }},
        {N::progressx, silent,
         [](A& a, const E& e) { take(e, a.m_progress, &ProgressDisplay::onProgressx); }},
        {N::step2, silent, [](A& a, const E& e) { take(e, a.m_results, &Results::append); }},
        {N::progress, silent, [](A& a, const E&) { a.m_progress.count(1); }},
        {N::deleteAddCount, silent, [](A& a, const E&) { a.m_progress.count(1); }},
        {N::deleteValidity, silent, [](A& a, const E&) { a.m_results.validity(); }},
        {N::deleteFinish, silent,
         [](A& a, const E& e) {
             a.m_deletion.onDeleteFinish(e);
             a.tellDeletion();
         }},
        {N::deleteCancel, silent,
         [](A& a, const E& e) {
             a.m_deletion.onDeleteCancel(e);
             a.tellDeletion();
         }},
        {N::tableviewSpacebar, silent,
         [](A& a, const E&) {
             if (a.isIdle()) a.m_marks.toggleSelectedRows();
         }},
        {N::readError, silent, [](A& a, const E& e) { take(e, a.m_search, &Search::onReadError); }},
        {N::surveyDone, silent, [](A& a, const E& e) { a.m_deletion.onSurveyDone(e); }},
        {N::cleanupsListed, silent, [](A& a, const E& e) { a.m_restoring.onCleanupsListed(e); }},
        {N::restoreForeseen, silent, [](A& a, const E& e) { a.m_restoring.onRestoreForeseen(e); }},
        {N::restoreProgress, silent,
         [](A& a, const E& e) { take(e, a.m_restoring, &Restoring::onRestoreProgress); }},
        {N::restoreFinish, silent,
         [](A& a, const E& e) {
             take(e, a.m_restoring, &Restoring::onRestoreFinish);
             if (const RestoreAnswer* const answer = a.m_restoring.lastAnswer())
                 a.m_notices.tellRestore(*answer);
             a.m_library.refresh();
         }},
        {N::interruptionFound, silent,
         [](A& a, const E& e) { take(e, a, &AppController::tellInterruption); }},
        {N::cleanupFinished, silent, [](A& a, const E& e) { take(e, a.m_notices, &Notices::tellFinished); }},
        {N::libraryRead, silent, [](A& a, const E& e) { a.onLibraryRead(e); }},
        {N::mergeAddCount, silent, [](A& a, const E&) { a.m_progress.count(1); }},
        {N::mergeFinish, silent, [](A& a, const E& e) { take(e, a.m_deletion, &Deletion::onMergeFinish); }},
        {N::mergeCancel, silent,
         [](A& a, const E& e) {
             take(e, a.m_deletion, &Deletion::onMergeCancel);
             a.tellDeletion();
         }},
    });
    static_assert(hasEveryEventInItsPlace(reactions), "an event would find another one's reaction, or none");
    if (m_search.isStale(event)) return;
    const Reaction& reaction = reactions.at(static_cast<std::size_t>(event.name));
    if (reaction.log == line) m_services.log.line("Handler : " + std::string(text(event.name)));
    reaction.react(*this, event);
}

} // namespace songsweep
