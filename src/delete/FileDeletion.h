// SPDX-License-Identifier: MIT
#pragma once

#include "delete/DeletePlan.h"
#include "delete/DeleteReport.h"
#include "delete/Obstacles.h"
#include "delete/StayingFiles.h"
#include "libraryfile/RecordedCleanup.h"
#include "platform/Files.h"
#include "platform/Result.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace songsweep {

class AppleScript;
class Cleanup;

/// Has Finder trash the files of marked tracks, one after the other, and tells what became of them when all
/// that waits has been done.
///
/// A file goes only where it is still the one that the plan was made of, by device, inode, size and time: its
/// location may lead elsewhere by then, as when the file of the name's other Unicode form has gone before. A
/// look at the file system for each file before Finder is told, and one after it. A worker thread.
class FileDeletion {
  public:
    /// Scripts and files outlive it.
    FileDeletion(AppleScript& scripts, const Files& files, DeletePlan plan)
        : m_scripts(scripts)
        , m_files(files)
        , m_plan(std::move(plan)) {}

    /// What is planned for a marked track, and for its file if files go.
    RecordedTrack planFor(const TrackRecord& record, bool withFile) const;
    /// Why a marked track stays for the sake of its file; null where it does not.
    const char* trackObstacle(const TrackRecord& record) const { return nameObstacle(record, m_plan); }
    /// Keeps the files of the rows that will stay from going with others; before the first file goes.
    void keepFiles(const std::vector<TrackRecord*>& rows, SharedIds& ids) { m_staying = {rows, m_plan, ids}; }
    /// Deals with the track's file; the outcome is the report's next one. An exception of the standard kind,
    /// whatever it comes from, only keeps the file.
    void deleteFileOf(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number);
    /// The file of a track that stays stays with it.
    void keepFileOf(const TrackRecord& record, DeleteOutcome& outcome) const;
    /// Notes in the outcomes of the tracks what became of the files that Finder was told of. The clean-up has
    /// finished.
    void settle(std::vector<DeleteOutcome>& outcomes, Cleanup& cleanup) const;

  private:
    struct Told {
        std::size_t outcome = 0;
        std::string name; ///< local
        Result<void> result;
    };

    void tellOfOther(const DeleteOutcome& other, const Told& told, DeleteOutcome& outcome) const;
    void decide(const TrackRecord& record, DeleteOutcome& outcome, std::size_t number);
    void trash(const TrackRecord& record, const std::string& hfs, std::size_t number);
    std::optional<FileAttributes> fileOf(const TrackRecord& record) const;
    const PlannedFile* plannedFileOf(const TrackRecord& record) const;
    Result<void> tellFinder(const std::string& text);

    AppleScript& m_scripts;
    const Files& m_files;
    DeletePlan m_plan;
    StayingFiles m_staying;
    std::vector<Told> m_told;
    std::unordered_map<std::string, std::string> m_names; ///< of the files told, by canonical path
};

} // namespace songsweep
