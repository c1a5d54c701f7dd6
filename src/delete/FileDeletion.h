// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "platform/Result.h"

#include <string>
#include <unordered_set>

namespace songsweep {

class AppleScript;
class Files;

/// Has Finder trash the files of marked tracks, one after the other.
///
/// A file goes only where it is still the one that the plan was made of: its location may lead elsewhere by
/// then, as when the file of the name's other Unicode form has gone before. A worker thread.
class FileDeletion {
  public:
    /// Scripts and files outlive it.
    FileDeletion(AppleScript& scripts, const Files& files, DeletePlan plan)
        : m_scripts(scripts)
        , m_files(files)
        , m_plan(std::move(plan)) {}

    /// Deals with the track's file and notes in the outcome what became of it. An exception of the standard
    /// kind, whatever it comes from, only keeps the file.
    void deleteFileOf(const TrackRecord& record, DeleteOutcome& outcome);

  private:
    void decide(const TrackRecord& record, DeleteOutcome& outcome);
    void trash(const TrackRecord& record, const std::string& file, DeleteOutcome& outcome);
    const char* obstacleOf(const TrackRecord& record) const;
    std::string fileOf(const TrackRecord& record) const;
    std::string plannedFileOf(const TrackRecord& record) const;
    Result<void> tellFinder(const std::string& text);

    AppleScript& m_scripts;
    const Files& m_files;
    DeletePlan m_plan;
    std::unordered_set<std::string> m_trashed; ///< canonical paths
};

} // namespace songsweep
