// SPDX-License-Identifier: MIT
#pragma once

#include "app/views/NoticeView.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace songsweep {

class Desktop;
class Log;
struct ComparedSounds;
struct DeleteReport;
struct FinishAnswer;
struct InterruptedCleanup;
struct MissingFiles;
struct RestoreAnswer;
struct SearchParameters;

/// Tells what a search, a deletion or a restore came to, over the table, and does what the message's buttons
/// offer, but for those that begin with a choice of the user: those are the windows' matter.
///
/// There is one message at a time; what its buttons need is taken from the report when it is told, so that
/// later deletions and searches do not change what they mean. Main thread.
class Notices {
  public:
    struct Services {
        Desktop& desktop;
        Log& log;
        /// Opens the restore sheet on the clean-up of that record.
        std::function<void(const std::string& record)> restore;
        /// Finishes the interrupted deletion of that record.
        std::function<void(const std::string& record)> finish;
    };

    Notices(Services services, NoticeView& view)
        : m_services(std::move(services))
        , m_view(view) {}

    void tellDeletion(std::shared_ptr<const DeleteReport> report);
    void tellRestore(const RestoreAnswer& answer);
    void tellInterruption(const InterruptedCleanup& found);
    /// Files of a folder that could not be read, a line each.
    void tellUnreadFiles(const std::string& title, std::vector<std::string> lines);
    /// An interrupted deletion is being finished, and then: what came of it.
    void tellFinishing();
    void tellFinished(const std::shared_ptr<FinishAnswer>& answer);
    void tellSounds(const ComparedSounds& sounds);
    /// A search found no duplicates among so many tracks.
    void tellNoDuplicates(int tracks, const SearchParameters& parameters, const MissingFiles& missing);
    /// Most of the files are not where the library says.
    void tellMissingFiles(const MissingFiles& missing);
    void close();

    void noticeActionClick(NoticeAction action);

  private:
    /// Adds the buttons for which there is something to show.
    void show(Notice notice);
    void forget();
    void showInFileManager(const std::string& path);

    Services m_services;
    NoticeView& m_view;
    std::function<std::vector<std::string>()> m_details; ///< of a million tracks, made when asked for
    std::string m_trashedFile;                           ///< one of those that went to the Trash, "" for none
    std::string m_backup;
    std::string m_record;     ///< of what can be restored
    std::string m_unfinished; ///< the record of what can be finished, "" for none
};

} // namespace songsweep
