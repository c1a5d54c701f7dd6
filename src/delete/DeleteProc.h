// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "delete/FileDeletion.h"
#include "library/DisplayedList.h"
#include "operations/Operation.h"
#include "platform/Result.h"

#include <cstddef>
#include <exception>
#include <memory>
#include <string>

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
};

/// Deletes the marked tracks: each from iTunes by its persistent ID, its file to the Trash if asked, its
/// record from the displayed list itself.
///
/// The rows that stay are moved together as the loop goes, so that a deletion of many tracks is linear; the
/// list is whole again whenever the loop is left. The sound is off meanwhile. What became of each track
/// stands in the report, which comes with the final event, and in the log after it. A deletion that cannot
/// begin, or whose library cannot be written, ends as a cancelled one does; a track that stays keeps its
/// file.
class DeleteProc final : public Operation {
  public:
    /// `list` is the controller's own and outlives the worker. Files that the plan does not know, and those
    /// that it calls shared, are left.
    DeleteProc(DisplayedList& list, bool isDelFile, DeleteServices services, DeletePlan plan = {});

    void main() override;

  private:
    class Compaction;

    bool deleteRows();
    bool deleteAll(std::exception_ptr& failure);
    void finish();
    void unmute(std::exception_ptr& failure);
    bool hasFailed() const;
    void deleteMarked(TrackRecord& record);
    void deleteTrack(const TrackRecord& record, DeleteOutcome& outcome);
    Result<void> run(const std::string& text);
    void noteNotAttempted();
    void postEnd();

    DisplayedList& m_list;
    bool m_isDelFile;
    DeleteServices m_services;
    FileDeletion m_fileDeletion;
    std::shared_ptr<DeleteReport> m_report = std::make_shared<DeleteReport>();
};

} // namespace songsweep
