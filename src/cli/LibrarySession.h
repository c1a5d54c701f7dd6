// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppController.h"
#include "app/Program.h"
#include "cli/CommandLog.h"
#include "cli/ConsoleView.h"
#include "cli/InterruptWatch.h"
#include "cli/Options.h"
#include "cli/SearchReport.h"
#include "platform/ReasonWithPath.h"

#include <QEventLoop>

#include <memory>
#include <optional>
#include <string>

namespace songsweep::cli {

/// What `find`, `mark` and `delete` do with one library: the program's parts, its controller with the console
/// as its view, a search, and a deletion of what was marked.
///
/// The real workers run on the real queue, with the real events. Ctrl-C cancels what runs, at any time. Main
/// thread, under a QCoreApplication.
class LibrarySession {
  public:
    enum class Purpose { look, cleanUp }; ///< whether nobody else may clean up the library meanwhile

    LibrarySession(const FindOptions& options, const std::string& version, Purpose purpose = Purpose::look);

    /// Searches. The exit code of what went wrong, told on standard error; nothing on success.
    std::optional<ExitCode> search();

    /// What the confirmation says of deleting the marked tracks; with files, once they were looked at.
    const DeleteConfirmationFacts& askToDelete(bool deleteFiles);

    /// Says yes to it, and deletes them. False when it was interrupted. Write the library afterwards.
    bool deleteMarked(bool deleteFiles, bool leaveSharedFiles, MergeChoice merge);

    /// Why the deletion did not begin; nothing where it did.
    const std::optional<std::string>& deletionProblem() const { return m_view.deletionProblem(); }

    /// Writes the library without the deleted tracks.
    Result<void> writeLibrary();

    /// For a result that is given up on Ctrl-C.
    const InterruptWatch& interrupts() const { return m_interrupts; }

    AppController& controller() { return *m_controller; }
    Program& program() { return *m_program; }
    Log& log() { return *m_log; }
    SearchReport report();

    /// What a command answers that did all that it was to: a failure where the search was not complete.
    ExitCode searchedCode() const;

  private:
    std::vector<std::string> notes() const;
    void warnOfInterruption();
    std::optional<std::string> openLog();
    std::optional<std::string> prepare();
    std::optional<std::string> lockLibrary();
    std::optional<std::string> choosePlaylist();
    std::vector<std::vector<std::string>> playlistsOfRows();
    void runUntilIdle();
    void waitForSurvey();
    void interrupt();
    void endDeletionAtOnce();
    std::string withPath(const std::string& message) const {
        return reasonWithPath(m_options.library, message);
    }

    FindOptions m_options;
    std::string m_version;
    Purpose m_purpose;
    ConsoleView m_view;
    QEventLoop m_loop;
    bool m_interrupted = false;
    bool m_waitsForSurvey = false;
    InterruptWatch m_interrupts;
    std::shared_ptr<CommandLog> m_log;
    std::unique_ptr<Program> m_program;
    std::unique_ptr<AppController> m_controller;
    int m_trackCount = 0;
    bool m_playlistGiven = false;
};

/// Writes the search's report to where the options say, until Ctrl-C. The exit code of a failure, nothing on
/// success.
std::optional<ExitCode> writeResult(const FindOptions& options, const SearchReport& report,
                                    const InterruptWatch& interrupts);

} // namespace songsweep::cli
