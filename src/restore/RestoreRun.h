// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/CleanupRecord.h"
#include "platform/Trash.h"
#include "restore/RestoreReport.h"
#include "restore/RestoreTask.h"

#include <cstddef>
#include <vector>

namespace songsweep {

/// The steps of one restore that has begun: entries and files, each written down before it is done, then
/// playlist files, which the record of the deletion has, and outcomes.
class RestoreRun {
  public:
    RestoreRun(LibraryRestore& restore, CleanupRecord& record, Trash& trash,
               const std::vector<RecordedPlaylist>& playlists, RestoreReport report);

    /// Writes down what is planned; nothing is done after an error.
    Result<void> plan();

    RestoreReport carryOut(const std::vector<FileReturn>& files, const RestoreTask& task);

  private:
    RestoreReport leaveNothing();
    bool writeEntries();
    void moveFiles(const std::vector<FileReturn>& files, const RestoreTask& task);
    void moveFile(std::size_t track, const TrashedFile& place);
    void forgetMoved(const std::vector<FileReturn>& files);
    void fail(const Error& error);
    void writeOutcomes();

    LibraryRestore& m_restore;
    CleanupRecord& m_record;
    Trash& m_trash;
    const std::vector<RecordedPlaylist>& m_playlists;
    RestoreReport m_report;
};

} // namespace songsweep
