// SPDX-License-Identifier: MIT
#include "cli/SoundOption.h"

#include "app/Progress.h"
#include "cli/Commands.h"
#include "cli/ConsoleProgress.h"
#include "cli/LibrarySession.h"
#include "dupes/RecordingGroups.h"
#include "platform/Words.h"
#include "sound/ListenerProgram.h"
#include "sound/SoundComparison.h"

#include <chrono>

namespace songsweep::cli {

namespace {

/// The progress that a reading shows, for a listening.
class ListeningProgress {
  public:
    explicit ListeningProgress(ConsoleProgress::Line line)
        : m_console(line) {
        m_console.beginProgress();
        m_console.setProgressText(words("SoundOption", "Comparing sounds"));
    }
    ListeningProgress(const ListeningProgress&) = delete;
    ListeningProgress& operator=(const ListeningProgress&) = delete;
    ~ListeningProgress() { m_console.endProgress(); }

    void show(std::size_t done, std::size_t total) {
        if (total == 0) return;
        const double percent = 100.0 * static_cast<double>(done) / static_cast<double>(total);
        const auto elapsed = std::chrono::steady_clock::now() - m_begun;
        const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
        m_console.setProgressValue(percent);
        m_console.setProgressCounts({.done = static_cast<int>(done),
                                     .total = static_cast<int>(total),
                                     .secondsLeft = secondsLeft(percent, milliseconds)});
    }

  private:
    ConsoleProgress m_console;
    std::chrono::steady_clock::time_point m_begun = std::chrono::steady_clock::now();
};

} // namespace

std::optional<ExitCode> compareSoundsIfAsked(LibrarySession& session, const FindOptions& options) {
    if (!options.sound) return std::nullopt;
    const std::string program = listenerProgram();
    if (!isProgram(program))
        return fail(filled(words("SoundOption", "sounds cannot be compared: there is no %1"), {program}));
    Listening listening(listeningBy(program), session.program().files());
    ListeningProgress progress(options.verbose ? ConsoleProgress::Line::taken : ConsoleProgress::Line::free);
    const auto& rows = session.controller().tableDataSource().rows;
    const auto sounds =
        compareSounds(comparedCopies(rows), listening,
                      {.cancelled = [&] { return session.interrupts().heard(); },
                       .progress = [&](std::size_t done, std::size_t total) { progress.show(done, total); }});
    if (!sounds) return ExitCode::interrupted;
    for (const std::string& line : sounds.value().unread)
        session.log().line(line);
    keepFindings(rows, sounds.value().findings);
    session.controller().arrangeRows(recordingOrder(rows));
    return std::nullopt;
}

} // namespace songsweep::cli
