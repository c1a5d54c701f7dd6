// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "delete/FileDeletion.h"
#include "delete/SharedIds.h"
#include "delete/StayingCopies.h"
#include "library/DisplayedList.h"
#include "libraryfile/RecordedCleanup.h"
#include "operations/BackgroundDelete.h"
#include "operations/Operation.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace songsweep {

class AppleScript;
class Cleanup;
class Files;
class Log;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// What a deletion works with; all of it outlives the worker.
struct DeleteServices {
    NotificationCenter<WorkerEvent>& center;
    AppleScript& scripts;
    Files& files;
    Log& log;
    Cleanup& cleanup;
    TracksOfId tracksOfId = {}; ///< not set: the displayed rows are all that is known
};

/// Deletes the marked tracks: each from iTunes by its persistent ID, its file to the Trash if asked, its
/// record from the displayed list itself.
///
/// The rows that stay are moved together as the loop goes, so that a deletion of many tracks is linear; the
/// list is whole again whenever the loop is left. No text is sent of a track whose deletion would take along
/// one that is not marked, or whose file would be the last copy although another was to stay. The sound is
/// off meanwhile. What became of each track stands in the report, which comes with the final event, and in
/// the log after it. A deletion that cannot begin, or whose library cannot be written, ends as a cancelled
/// one does; a track that stays keeps its file.
class DeleteProc final : public Operation {
  public:
    /// `list` is the controller's own and outlives the worker. Files that the plan does not know, and those
    /// that it calls shared, are left.
    DeleteProc(DisplayedList& list, bool isDelFile, DeleteServices services, DeletePlan plan = {});

    void main() override;

  private:
    class Compaction;

    bool begin();
    std::vector<RecordedTrack> plannedTracks() const;
    bool deleteRows();
    bool deleteAll(std::exception_ptr& failure);
    void finish();
    void endCleanup(RecordEnd::How how);
    void unmute(std::exception_ptr& failure);
    bool hasFailed() const;
    void deleteMarked(TrackRecord& record);
    std::string reasonToKeep(const TrackRecord& record);
    void deleteTrack(const TrackRecord& record, DeleteOutcome& outcome);
    Result<void> run(const std::string& text);
    void noteNotAttempted();
    void postEnd();

    DisplayedList& m_list;
    bool m_isDelFile;
    DeleteServices m_services;
    std::unordered_set<std::int32_t> m_keptSongs;
    std::optional<SharedIds> m_sharedIds; // both of the rows as they are when it begins
    std::optional<StayingCopies> m_stayingCopies;
    MergeReport m_merge;
    FileDeletion m_fileDeletion;
    std::shared_ptr<DeleteReport> m_report = {new DeleteReport, BackgroundDelete()};
};

} // namespace songsweep
