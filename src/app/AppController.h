// SPDX-License-Identifier: MIT
#pragma once

#include "app/ControllerServices.h"
#include "app/CurrentLibrary.h"
#include "app/Deletion.h"
#include "app/Links.h"
#include "app/MapGuess.h"
#include "app/Marks.h"
#include "app/Notices.h"
#include "app/ProgressDisplay.h"
#include "app/Restoring.h"
#include "app/Results.h"
#include "app/ResultsExport.h"
#include "app/Search.h"
#include "app/TrackActions.h"
#include "app/views/ApplicationView.h"
#include "app/views/ControllerViews.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_set>

namespace songsweep {

struct ComparedSounds;

/// The logic of the main window, without any widget: every action of a control by its name, and the dispatch
/// of the workers' events.
///
/// A switchboard. What happens stands in the class that owns the data: Search, Results and Marks, Deletion,
/// ProgressDisplay; whether it may happen now stands here. One worker runs at a time, and the finishing event
/// of one starts the next. Main thread only; workers reach it through the notification centre.
class AppController {
  public:
    AppController(ControllerServices services, ControllerViews views);
    AppController(const AppController&) = delete;
    AppController& operator=(const AppController&) = delete;
    ~AppController(); ///< cancels the workers and waits for them

    // Start-up and end.
    /// The one-time set-up; `redirectLog` sends standard error to the log file.
    void awakeFromNib(const std::function<bool()>& redirectLog = {});
    /// True at once: cancels what runs. The workers have returned when the controller is gone.
    bool applicationShouldTerminate();
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    void mainWindowMenuClick() { m_view.showMainWindow(); }
    void aboutButtonClick() { m_view.showAboutWindow(); }
    void launchURL(const std::string& address);
    void websiteButtonClick() { launchURL(links::website); }
    /// Opens the guide that came with the program; its page in the net where none did.
    void guideMenuClick();
    void helpButtonClick() { launchURL(links::help); }
    void contactButtonClick() { launchURL(links::contact); }
    void alertCantAccessDidEnd(int returnCode);

    // The library.
    /// Has the library read, which is the first one, or another; where it cannot be read, `telling` says how
    /// that is told.
    void beginLibrary(CurrentLibrary::Telling telling) { m_library.begin(telling); }
    const LibraryOverview& library() const { return m_library.overview(); }

    // Searching.
    /// Opens the parameters dialog, whose playlists follow once the library was read; asks for a library
    /// where there is none.
    void startButtonClick();
    void paramOkButtonClick(SearchParameters choices);
    void paramCancelButtonClick() { m_search.closeParamWindow(); }
    void xmlStartClick() { m_search.xmlStartClick(); }
    void cancelformButtonClick();
    /// Forgets results and playlists, for another library. Nothing happens while a worker runs.
    bool resetForLibrary();

    /// Some of the files that the last search missed, as the library has them.
    std::vector<std::string> missingPaths() const;
    /// Looks for files by that rule, too, and searches again.
    void searchWithMap(const MapRule& rule);

    // The results table and its marks, which stand still while a worker runs.
    void setObjectValue(bool value, Column column, int row);
    void didClickTableColumn(Column column);
    void setStatusLabel() { m_results.setStatusLabel(); }
    void tableviewSpacebar() { m_center.post({EventName::tableviewSpacebar, {}, nullptr}); }
    void tableviewDoubleClick();
    void playMenuClick() { tableviewDoubleClick(); }
    void showinFinderMenuClick();
    void markButtonClick();
    void markOkButtonClick(const MarkChoice& choice);
    void markCancelButtonClick() { m_marks.markCancelButtonClick(); }
    void markFolderButtonClick() { m_marks.markFolderButtonClick(); }
    /// A folder as the rows spell it; as it is given while the rows are a worker's.
    std::string folderInLibrary(const std::string& folder) const;
    void markNone();
    void markMenuClick(std::int32_t tag);
    void undoMarks();
    void redoMarks();
    /// Why the record is marked, or stays; empty where no rule has marked anything, and while the rows are a
    /// worker's.
    std::string markReason(const TrackRecord& record) const;
    /// The results for a file, which another thread may write: they stand still until `endExport`. Nothing,
    /// and a beep, where there are none or a worker has them.
    std::optional<ResultsExport> beginExport(const std::string& path);
    void endExport() { m_isExporting = false; }
    int marksByHand() const { return m_results.markHistory().marksByHand(); }
    /// What a choice of the mark dialog would do now.
    MarkEffect markEffect(const MarkChoice& choice) const { return m_marks.effect(choice); }

    /// How each of a group's copies differs from the plainest, "name differs: feat. Rihanna, 1 s longer";
    /// empty texts where small differences count, and while the rows are a worker's.
    std::vector<std::string> differences(const std::vector<TrackRecord*>& copies) const;

    // Comparing sounds.
    /// Whether rules go by recordings.
    bool soundsCompared() const { return m_results.soundsCompared(); }
    /// The rows whose sounds are to be compared, in whole groups; none while they are a worker's.
    enum class SoundScope { listed, selected };
    DisplayedList rowsToCompare(SoundScope scope) const;
    /// What was found of the sounds of a list's rows; forgotten where there is another list by now.
    void keepSounds(const DisplayedList& list, const ComparedSounds& sounds);

    // Deleting.
    void deleteButtonClick();
    /// The menu command: refreshes the status, then presses Delete, or beeps.
    void deleteMarkedMenuClick();
    /// The songs that the confirmation warns of, by the numbers of their groups.
    std::unordered_set<std::int32_t> songsLost(FilesToTrash files) const {
        return m_deletion.songsLost(files);
    }
    void delConfCancelButtonClick() { m_deletion.delConfCancelButtonClick(); }
    /// `leaveSharedFiles`: files that a track that stays uses too are not touched. Nothing happens with
    /// `deleteFiles` before the survey of the files has answered.
    void delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles = true, MergeChoice merge = {});
    void beginDelete() { m_deletion.beginDelete(); }
    void cancelButtonClick();

    // Restoring.
    /// Opens the restore sheet, or beeps where the library is the system's or a worker runs.
    void restoreMenuClick();
    /// Once the library is a new one: tells where its newest deletion was killed.
    void lookForInterruption() { m_restoring.lookForInterruption(); }
    void restoreCleanupChosen(int index, LostFiles lostFiles) { m_restoring.chooseCleanup(index, lostFiles); }
    void restoreOkButtonClick();
    void restoreCancelButtonClick() { m_restoring.restoreCancelButtonClick(); }
    void noticeActionClick(NoticeAction action) { m_notices.noticeActionClick(action); }
    void tellUnreadFiles(const std::string& title, std::vector<std::string> lines) {
        m_notices.tellUnreadFiles(title, std::move(lines));
    }
    void noticeCloseButtonClick() { m_notices.close(); }

    // What views and commands look at.
    /// Puts the rows into another order, the numbers of the rows as they stand; groups stay together.
    void arrangeRows(const std::vector<std::size_t>& order) { m_results.arrangeRows(order); }
    const Files& files() const { return m_services.files; }
    /// The names of the playlists that hold the tracks of some persistent IDs. Any thread.
    std::vector<std::vector<std::string>>
    playlistsOfTracks(const std::vector<std::string>& persistentIds) const {
        return m_services.playlistsOfTracks(persistentIds);
    }
    const DisplayedList& tableDataSource() const { return m_results.tableDataSource(); }
    const std::optional<MarkChoice>& lastMarkChoice() const { return m_results.lastMarkChoice(); }
    /// The songs of which copies that stay can be given what the marked ones know.
    SongsToMerge songsToMerge() const {
        return SongsToMerge(tableDataSource().rows, tableDataSource().storage, m_results.keptByReason());
    }
    int getCheckedCount() const { return m_results.getCheckedCount(); }
    int listedCount() const { return m_search.listedCount(); }
    const DeleteReport* lastDeleteReport() const { return m_deletion.lastReport().get(); }
    const Progress& progress() const { return m_progress.progress(); }
    bool missedPlaylist() const { return m_search.missedPlaylist(); }
    SearchVerdict searchVerdict() const { return m_search.verdict(); }
    const std::vector<std::string>& libraryWarnings() const { return m_search.findings().warnings; }
    bool isSearching() const { return m_search.isRunning(); }
    bool isDeleting() const { return m_deletion.isOn(); }
    /// Whether the rows are a worker's now, so that nobody else may look at them.
    bool isDeletingRows() const { return m_deletion.hasRows(); }
    bool isWorking() const { return m_queue.operationCount() > 0; }
    /// Nothing runs, nothing is exported, and no deletion is being confirmed.
    bool isIdle() const { return !isDeleting() && !isWorking() && !m_isExporting; }
    /// Nobody works with the present library, nor reads it.
    bool mayOpenLibrary() const { return isIdle() && !m_library.isReading(); }
    /// Called from the event loop each time the last worker has returned, and when a deletion was cancelled
    /// before it had one.
    void setIdleHandler(std::function<void()> handler) { m_idleHandler = std::move(handler); }

    /// Where workers post; a view posts "tableviewSpacebar" here.
    NotificationCenter<WorkerEvent>& notificationCenter() { return m_center; }

  private:
    struct Reaction;

    void beginRestore(const std::string& record);
    void finishCleanup(const std::string& record);
    void tellDeletion();
    void tellSearch();
    void onLibraryRead(const WorkerEvent& event);
    void tellInterruption(const std::shared_ptr<InterruptedCleanup>& found);
    void threadHandlerSingleFinished2(const WorkerEvent& event);
    /// Null for none, and while the rows are a worker's.
    const TrackRecord* selectedRecord() const;
    void reportIdle() const;

    ControllerServices m_services;
    ApplicationView& m_view;
    NotificationCenter<WorkerEvent> m_center;
    CurrentLibrary m_library;
    ProgressDisplay m_progress;
    Results m_results;
    Marks m_marks;
    TrackActions m_trackActions;
    Search m_search;
    Deletion m_deletion;
    Restoring m_restoring;
    Notices m_notices;
    std::function<void()> m_idleHandler;
    bool m_userCancelled = false;
    bool m_isExporting = false;
    OperationQueue m_queue; ///< last, so that its workers end before what they use
};

} // namespace songsweep
