// SPDX-License-Identifier: MIT
#pragma once

#include "delete/Cleanup.h"
#include "delete/DeleteProc.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "support/RecordingAppleScript.h"
#include "support/RecordingLog.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace songsweep::test {

/// Writes log lines into the journal of a fixture.
class JournalLog final : public Log {
  public:
    explicit JournalLog(std::vector<std::string>& journal)
        : m_journal(journal) {}
    void line(std::string_view text) override { m_journal.push_back("log " + std::string(text)); }

  private:
    std::vector<std::string>& m_journal;
};

/// The plan alone, made at once.
DeletePlan makeDeletePlan(const std::vector<TrackRecord*>& rows, const Files& files,
                          const LibraryLocations& locations);

/// A deletion on the main thread, where events are handled as they are posted, over real files.
///
/// The journal holds scripts ("mute", "track PID", "file HFSPATH", "unmute"), events and log lines in their
/// order. The Finder that answers moves files to a folder "Trash".
class DeleteFixture : public testing::Test {
  protected:
    using Hook = std::function<void(const std::string& entry)>;

    DeleteFixture();

    /// A row of the group; marked ones are to be deleted.
    TrackRecord& add(int gid, const char* pid, bool marked, std::string_view location = "");
    /// A row of group 1 whose file is made, with the name in the folder.
    TrackRecord& addFile(const char* pid, bool marked, const std::string& name);

    /// Runs a deletion by a plan of the rows, or another one, and leaves its report; what it throws comes
    /// out.
    void run(bool deleteFiles) { run(deleteFiles, makeDeletePlan(m_list.rows, m_files, {})); }
    void run(bool deleteFiles, DeletePlan plan);

    /// Called with each entry of the journal but log lines; may throw, or cancel the operation.
    void setHook(Hook hook) { m_hook = std::move(hook); }
    void cancel() { m_operation->cancel(); }
    /// Scripts of this journal entry fail with the message.
    void failAt(const std::string& entry, const std::string& message);

    /// Journal entries that begin so; all without log lines where nothing is given.
    std::vector<std::string> journal(std::string_view beginning = "") const;
    const std::vector<std::string>& wholeJournal() const { return m_journal; }
    /// "PID: outcome" of each track of the report.
    std::vector<std::string> outcomes() const { return outcomesOf(m_report); }
    static std::vector<std::string> outcomesOf(const DeleteReport& report);
    std::vector<std::string> pidsLeft() const;
    bool exists(const std::string& name) const;
    std::string path(const std::string& name) const { return m_folder.path() + "/" + name; }
    int trashedCount() const;

    TemporaryFolder m_folder;
    DisplayedList m_list;
    Files m_files;
    DeleteReport m_report;
    TracksOfId m_tracksOfId; ///< not set: the library does not tell

  private:
    void note(const std::string& entry);
    Result<Descriptor> answer(std::string_view text);
    void moveToTrash(const std::string& path) const;

    std::vector<std::string> m_journal;
    JournalLog m_log{m_journal};
    RecordingAppleScript m_scripts;
    Cleanup m_cleanup; ///< of texts that act at once
    NotificationCenter<WorkerEvent> m_center;
    Hook m_hook;
    std::string m_failingEntry;
    std::string m_failure;
    DeleteProc* m_operation = nullptr;
};

} // namespace songsweep::test
