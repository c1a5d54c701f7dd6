// SPDX-License-Identifier: MIT
#include "cli/LibrarySession.h"

#include "app/LibraryWarnings.h"
#include "cli/CommandLog.h"
#include "cli/Commands.h"
#include "cli/FolderReading.h"
#include "cli/Output.h"
#include "delete/DeleteTexts.h"
#include "dupes/SmallDifference.h"
#include "library/CaseFolding.h"
#include "library/Trim.h"
#include "merge/CopyPlaylists.h"
#include "platform/Native.h"
#include "platform/Words.h"
#include "restore/InterruptedCleanup.h"
#include "scan/ScanProgress.h"

#include <algorithm>
#include <cstdio>

namespace songsweep::cli {

namespace {

std::string listOf(const std::vector<PlaylistInfo>& playlists) {
    if (playlists.empty()) return words("LibrarySession", "the library has none");
    std::string names;
    for (const PlaylistInfo& playlist : playlists)
        names += "\n  " + playlist.name;
    return words("LibrarySession", "the library has") + names;
}

} // namespace

LibrarySession::LibrarySession(const FindOptions& options, const std::string& version, Purpose purpose)
    : m_options(options)
    , m_version(version)
    , m_purpose(purpose)
    , m_view({.readFailed = [this] { m_controller->cancelformButtonClick(); },
              .surveyed = [this] { m_loop.quit(); }},
             options.verbose ? ConsoleProgress::Line::taken : ConsoleProgress::Line::free)
    , m_interrupts([this] { interrupt(); }) {}

std::optional<ExitCode> LibrarySession::search() {
    if (const auto problem = openLog()) return fail(*problem);
    if (const auto problem = turnToFolderLibrary(m_options, *m_log, [this] { return m_interrupts.heard(); }))
        return problem;
    warnOfInterruption();
    if (const auto problem = prepare()) return fail(*problem);
    if (!m_interrupted) m_controller->paramOkButtonClick(m_options.parameters);
    if (m_controller->isWorking()) runUntilIdle();
    if (m_interrupted) return ExitCode::interrupted;
    if (m_view.searchProblem()) return fail(withPath(*m_view.searchProblem()));
    if (!m_view.hasResults())
        return fail(withPath(words("LibrarySession", "the search ended without a result")));
    if (m_playlistGiven && m_controller->missedPlaylist())
        return fail(
            withPath(filled(words("LibrarySession", "the search could not be limited to the playlist '%1'"),
                            {m_options.parameters.playlist.value_or("")})));
    for (const std::string& note : m_controller->searchVerdict().notes)
        tell(withPath(note));
    for (const std::string& warning : m_controller->libraryWarnings())
        tell(withPath(filled(words("LibrarySession", "warning: %1"), {warning})));
    return std::nullopt;
}

ExitCode LibrarySession::searchedCode() const {
    return m_controller->searchVerdict().isComplete ? ExitCode::done : ExitCode::failed;
}

/// Before this program locks the library itself.
void LibrarySession::warnOfInterruption() {
    const auto desktop = nativeDesktop();
    if (const auto found = findInterruptedCleanup(m_options.library, Files(m_options.map), desktop->trash()))
        tell(withPath(interruption(*found)));
}

void LibrarySession::runUntilIdle() {
    m_controller->setIdleHandler([this] { m_loop.quit(); });
    m_loop.exec();
    m_controller->setIdleHandler({});
}

void LibrarySession::interrupt() {
    m_interrupted = true;
    if (m_waitsForSurvey) {
        m_loop.quit();
    } else if (m_controller && m_controller->isDeleting()) {
        m_controller->cancelButtonClick();
        std::fputs("songsweep: stopping after the track in hand\n", stderr);
    } else if (m_controller) {
        m_controller->cancelformButtonClick();
    }
}

std::optional<std::string> LibrarySession::openLog() {
    Result<std::unique_ptr<CommandLog>> log = CommandLog::open(m_options);
    if (!log) return log.error().message;
    m_log = std::move(log).value();
    m_interrupts.setFirstAct([log = m_log] { log->endSoon(); });
    return std::nullopt;
}

std::optional<std::string> LibrarySession::prepare() {
    m_program =
        std::make_unique<Program>(ProgramOptions{m_options.library, m_options.map, m_options.iTunesVersion,
                                                 m_version, "the command delete", m_options.mapRules},
                                  *m_log);
    if (const Result<void> read = m_program->scripting().readLibrary(); !read)
        return withPath(read.error().message);
    if (auto problem = lockLibrary()) return problem;
    if (auto problem = choosePlaylist()) return problem;
    m_controller = std::make_unique<AppController>(m_program->controllerServices(), m_view.views());
    m_controller->awakeFromNib();
    return std::nullopt;
}

/// From before the search on, so that nobody else removes the copies that are to stay. What else is in the
/// way is told if there is something to delete.
std::optional<std::string> LibrarySession::lockLibrary() {
    if (m_purpose == Purpose::look) return std::nullopt;
    const Result<void> locked = m_program->cleanup().lock();
    if (locked || locked.error().code != Error::Code::busy) return std::nullopt;
    return locked.error().message;
}

/// The library's own playlist unless one was named; a name is compared as the readers do.
std::optional<std::string> LibrarySession::choosePlaylist() {
    const Result<int> count = m_program->scripting().trackCount();
    const Result<std::vector<PlaylistInfo>> playlists = m_program->scripting().playlists();
    if (!count) return withPath(count.error().message);
    if (!playlists) return withPath(playlists.error().message);
    m_trackCount = count.value();
    std::optional<std::string>& chosen = m_options.parameters.playlist;
    m_playlistGiven = chosen.has_value();
    if (!chosen) {
        if (!playlists.value().empty()) chosen = playlists.value().front().name;
        return std::nullopt;
    }
    const std::string wanted = lowercase(trimmed(*chosen));
    const auto found =
        std::find_if(playlists.value().begin(), playlists.value().end(),
                     [&](const PlaylistInfo& playlist) { return lowercase(playlist.name) == wanted; });
    if (found != playlists.value().end()) {
        chosen = found->name;
        return std::nullopt;
    }
    return withPath(filled(words("LibrarySession", "there is no playlist '%1'; %2"),
                           {*chosen, listOf(playlists.value())}));
}

const DeleteConfirmationFacts& LibrarySession::askToDelete(bool deleteFiles) {
    m_controller->deleteButtonClick();
    if (deleteFiles && m_controller->getCheckedCount() > 0) waitForSurvey();
    return m_view.deleteFacts();
}

bool LibrarySession::deleteMarked(bool deleteFiles, bool leaveSharedFiles, MergeChoice merge) {
    if (m_controller->getCheckedCount() == 0) return true;
    m_interrupts.setLastAct([this] { endDeletionAtOnce(); });
    // Ctrl-C may have come while tracks were marked, so late that nobody was told yet.
    m_interrupted |= m_interrupts.heard();
    if (m_interrupted) {
        m_controller->delConfCancelButtonClick();
    } else {
        m_controller->delConfOkButtonClick(deleteFiles, leaveSharedFiles, merge);
        runUntilIdle();
    }
    return !m_interrupted;
}

/// The answer comes by the event loop, so that Ctrl-C is heard meanwhile.
void LibrarySession::waitForSurvey() {
    m_waitsForSurvey = true;
    if (!m_interrupted) m_loop.exec();
    m_waitsForSurvey = false;
}

Result<void> LibrarySession::writeLibrary() {
    Result<void> written = m_program->scripting().flush();
    m_interrupts.setLastAct({});
    return written;
}

/// The sound comes back, and no file is in the Trash whose track is still in the library. Any thread.
void LibrarySession::endDeletionAtOnce() {
    std::fputs("songsweep: ending without a report\n", stderr);
    const Result<void> written = m_program->scripting().runLast(deleteTexts::unmute);
    if (!written) fail(withPath(written.error().message));
}

/// Those of the search, and that a folder has files that could not be read.
std::vector<std::string> LibrarySession::notes() const {
    std::vector<std::string> all = m_controller->searchVerdict().notes;
    if (!m_options.unread.empty()) all.push_back(unreadFilesText(m_options.unread.size()));
    return all;
}

/// For the format alone that has room for them.
std::vector<std::vector<std::string>> LibrarySession::playlistsOfRows() {
    using Playlists = std::vector<std::vector<std::string>>;
    if (m_options.format != OutputFormat::json) return {};
    const auto playlists =
        m_program->scripting().withLibrary([&](LibraryDocument& library) -> Result<Playlists> {
            return playlistsOfCopies(library, m_controller->tableDataSource().rows);
        });
    return playlists ? playlists.value() : Playlists();
}

SearchReport LibrarySession::report() {
    const std::vector<TrackRecord*>& rows = m_controller->tableDataSource().rows;
    return {.tracks = m_trackCount,
            .listed = m_controller->listedCount(),
            .notes = notes(),
            .unread = m_options.unread,
            .rows = rows,
            .differences = m_options.parameters.issimilar ? smallDifferencesOf(rows, m_options.parameters)
                                                          : std::vector<std::vector<std::string>>(),
            .hasSounds = m_options.sound,
            .playlists = playlistsOfRows()};
}

std::optional<ExitCode> writeResult(const FindOptions& options, const SearchReport& report,
                                    const InterruptWatch& interrupts) {
    Result<Output> output = Output::open(options.output, [&] { return interrupts.heard(); });
    if (!output) return failToWrite(output.error());
    writeReport(output.value(), report, options.format);
    if (const Result<void> written = output.value().finish(); !written) return failToWrite(written.error());
    return std::nullopt;
}

} // namespace songsweep::cli
