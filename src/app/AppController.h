// SPDX-License-Identifier: MIT
#pragma once

#include "app/ControllerView.h"
#include "app/ITunesQueries.h"
#include "app/Progress.h"
#include "delete/DeletePlan.h"
#include "delete/DeleteProc.h"
#include "delete/FileSurvey.h"
#include "dupes/MarkChoice.h"
#include "library/DisplayedList.h"
#include "library/SWXMLParser.h"
#include "library/SearchParameters.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "operations/OperationQueue.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace songsweep {

class Desktop;

/// What the controller works with. Everything referred to outlives it.
struct ControllerServices {
    AppleScript& scripts;
    Files& files;
    Preferences& preferences;
    Sleeper& sleeper;
    Log& log;
    Desktop& desktop;
    std::string version; ///< "1.0"
    /// Why the embedded library cannot be read, for the alert; empty where nothing is known.
    std::function<std::string()> unreachableReason = [] { return std::string(); };
    /// Every track of the whole library with its file, for finding files that two tracks share; called on a
    /// worker thread.
    LibraryLocations libraryLocations = {};
    /// Told that a deletion is about to begin, so that it gets a backup of its own. An error where it must
    /// not begin, as the library could not be written.
    std::function<Result<void>()> beginDeletionRun = [] { return Result<void>(); };
    /// Whether the library is the embedded iTunes', for the words of the delete confirmation.
    std::function<bool()> embeddedLibrary = [] { return true; };
};

/// The logic of the main window: starts workers, reacts to their events, and tells its view what to show.
///
/// A switchboard without any widget. Rules, formats, sorting and pruning are functions of their own folders;
/// here stands what happens when. One worker runs at a time, and the finishing event of one starts the next.
/// Main thread only; workers reach it through the notification centre. Names are those of the controls and
/// actions that they serve.
class AppController {
  public:
    AppController(ControllerServices services, ControllerView& view);
    AppController(const AppController&) = delete;
    AppController& operator=(const AppController&) = delete;
    ~AppController(); ///< cancels the workers and waits for them

    // Start-up and end.
    /// The one-time set-up; `redirectLog` sends standard error to the log file.
    void awakeFromNib(const std::function<bool()>& redirectLog = {});
    /// True at once: cancels what runs. The workers have returned when the controller is gone.
    bool applicationShouldTerminate();
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    void mainWindowMenuClick();
    void aboutButtonClick();
    void launchURL(const std::string& address);
    void websiteButtonClick();
    void helpButtonClick();
    void contactButtonClick();

    // Searching.
    void startButtonClick();
    void populatePlaylist();
    void paramOkButtonClick(SearchParameters choices);
    void paramCancelButtonClick();
    void closeParamWindow();
    void alertCantAccessDidEnd(int returnCode);
    /// Starts a reader made without arguments.
    void xmlStartClick();
    void cancelformButtonClick();
    /// Forgets results and playlists, for another library. Nothing happens while a worker runs.
    bool resetForLibrary();

    // The results table.
    void setObjectValue(bool value, Column column, int row);
    void didClickTableColumn(Column column);
    void realignShowID();
    void tableviewSpacebar();
    void tableviewDoubleClick();
    void playMenuClick();
    void showinFinderMenuClick();
    void setStatusLabel();

    // Marking.
    void markButtonClick();
    void markOkButtonClick(const MarkChoice& choice);
    void markCancelButtonClick();
    void markFolderButtonClick();
    void markNone();
    /// 0 and 1 check and uncheck the selected rows, 2 and 3 all rows.
    void markMenuClick(std::int32_t tag);

    // Deleting.
    /// Opens the confirmation at once; what it says of files comes when a survey of them has answered.
    void deleteButtonClick();
    /// The menu command: refreshes the status, then presses Delete, or beeps.
    void deleteMarkedMenuClick();
    void delConfCancelButtonClick();
    /// `leaveSharedFiles`: files that a track that stays uses too are not touched. Nothing happens with
    /// `deleteFiles` before the survey of the files has answered.
    void delConfOkButtonClick(bool deleteFiles, bool leaveSharedFiles = true);
    void beginDelete();
    int getCheckedCount() const;
    void validity();
    void cancelButtonClick();

    /// Where workers post; a view posts "tableviewSpacebar" here.
    NotificationCenter<WorkerEvent>& notificationCenter() { return m_center; }

    // What views look at.
    const DisplayedList& tableDataSource() const { return m_tableDataSource; }
    const SearchParameters& params() const { return m_params; }
    const Progress& progress() const { return m_progress; }
    /// What became of the tracks of the last deletion; null before the first has ended.
    const DeleteReport* lastDeleteReport() const { return m_deleteReport.get(); }
    /// The rule that set the present marks, for their reasons; nothing once a mark or the order has changed,
    /// since the rule might keep another copy now.
    const std::optional<MarkChoice>& lastMarkChoice() const { return m_lastMark; }
    bool isSearching() const { return m_searching; }
    bool isDeleting() const { return m_deletion != Deletion::none; }
    /// Whether the rows are a worker's now, so that nobody else may look at them.
    bool isDeletingRows() const { return m_deletion == Deletion::running; }
    bool isWorking() const { return m_queue.operationCount() > 0; }
    /// Nothing runs and no deletion is being confirmed.
    bool isIdle() const { return !isDeleting() && !isWorking(); }
    /// Records left for the grouping when the last reading ended.
    int listedCount() const { return m_listedCount; }
    /// Tracks that iTunes reports for the library.
    std::int32_t totalCount() const { return m_libraryCount; }
    /// Called from the event loop each time the last worker has returned, and when a deletion was cancelled
    /// before it had one.
    void setIdleHandler(std::function<void()> handler);

  private:
    enum class Deletion { none, confirming, starting, running };
    using Reaction = void (AppController::*)(const WorkerEvent&);
    struct EventReaction;

    // Worker events.
    void threadHandlerSingleFinished2(const WorkerEvent& event);
    bool isStale(const WorkerEvent& event) const;
    void onAddFinish(const WorkerEvent& event);
    void onXmlDoneParsing(const WorkerEvent& event);
    void onXmlError(const WorkerEvent& event);
    void onXmlErrorNotFound(const WorkerEvent& event);
    void onXmlModifiedDate(const WorkerEvent& event);
    void onBuildFinish(const WorkerEvent& event);
    void onAddCancel(const WorkerEvent& event);
    void onStep1(const WorkerEvent& event);
    void onProgressx(const WorkerEvent& event);
    void onStep2(const WorkerEvent& event);
    void onCount(const WorkerEvent& event);
    void onDeleteValidity(const WorkerEvent& event);
    void onDeleteFinish(const WorkerEvent& event);
    void onDeleteCancel(const WorkerEvent& event);
    void onSpacebar(const WorkerEvent& event);

    // Progress display.
    void showProgressWindow(ProgressBar bar);
    void closeProgressWindow(ProgressBar bar);
    void updateProgress();

    // The survey of the files of a deletion.
    void startSurvey(const DeleteConfirmationFacts& facts);
    void onReadError(const WorkerEvent& event);
    void onSurveyDone(const WorkerEvent& event);
    void forgetSurvey();

    // Steps of a search.
    void startReader();
    void startAddProc();
    void emptyResults();
    void showSearching();
    void abandonDeletion();
    /// Marks and order stand still while a worker runs: the groups of a search are whole only at its end.
    bool mayChangeMarks() const { return isIdle(); }
    void setAllMarks(bool value);
    /// Null for a row that is not, or no longer, there.
    TrackRecord* recordAt(int row) const;
    std::vector<TrackRecord*> selectedRecords() const;
    void keepReport(const WorkerEvent& event);
    void showRowsLeft();
    void reportIdle();
    ReaderServices readerServices();

    ControllerServices m_services;
    ControllerView& m_view;
    ITunesQueries m_queries;
    NotificationCenter<WorkerEvent> m_center;
    QTimer m_progressTimer;
    QTimer m_myTimer; ///< the short delay between confirmation and deletion

    SearchParameters m_params;
    std::shared_ptr<TrackList> m_list1;
    DisplayedList m_tableDataSource;
    Progress m_progress;
    std::int64_t m_libraryModifiedDate = 0; ///< nanoseconds since 1970 UTC
    std::int32_t m_playlistIndex = 1;
    std::int32_t m_libraryCount = 0;
    int m_listedCount = 0;
    int m_playlistCount = 0;
    int m_horizontalScrollbarShowCount = 0;
    bool m_useLibraryXML = false;
    bool m_deletedSinceRead = false;
    bool m_userCancelled = false;
    bool m_searching = false;
    bool m_deleteEnabled = false;
    bool m_kindListFlag = true;
    std::optional<ProgressBar> m_shownBar;
    std::optional<Column> m_sortColumn;
    bool m_sortAscending = false;
    bool m_sortIndicatorShown = false;
    std::optional<MarkChoice> m_lastMark;

    Deletion m_deletion = Deletion::none;
    bool m_deleteFiles = false;
    DeletePlan m_deletePlan;
    std::optional<std::uint64_t> m_pendingSurvey; ///< its serial, while the confirmation waits for its answer
    std::shared_ptr<const DeleteReport> m_deleteReport;

    std::uint64_t m_searchSerial = 0; ///< of the present search's first worker
    std::function<void()> m_idleHandler;
    // Last, so that their workers end before what they use.
    OperationQueue m_surveys; ///< of their own, so that no worker waits for a survey that takes long to stop
    OperationQueue m_queue;
};

} // namespace songsweep
