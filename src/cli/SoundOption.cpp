// SPDX-License-Identifier: MIT
#include "cli/SoundOption.h"

#include "cli/Commands.h"
#include "cli/ConsoleProgress.h"
#include "cli/LibrarySession.h"
#include "dupes/RecordingGroups.h"

#include <QCoreApplication>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <thread>

namespace songsweep::cli {

namespace {

/// Beside this program, as it is built and installed.
std::string listenerProgram() {
    return QCoreApplication::applicationDirPath().toStdString() + "/songsweep-listen";
}

/// The progress that a reading shows, for a listening.
class ListeningProgress {
  public:
    explicit ListeningProgress(ConsoleProgress::Line line)
        : m_console(line) {
        m_console.beginProgress();
        m_console.setProgressText("Comparing sounds");
    }
    ListeningProgress(const ListeningProgress&) = delete;
    ListeningProgress& operator=(const ListeningProgress&) = delete;
    ~ListeningProgress() { m_console.endProgress(); }

    void show(std::size_t done, std::size_t total) {
        m_console.setProgressValue(100.0 * static_cast<double>(done) / static_cast<double>(total));
    }

  private:
    ConsoleProgress m_console;
};

} // namespace

std::optional<ExitCode> compareSoundsIfAsked(LibrarySession& session, const FindOptions& options,
                                             std::optional<ComparedSounds>& sounds) {
    if (!options.sound) return std::nullopt;
    const std::string program = listenerProgram();
    std::error_code error;
    if (!std::filesystem::exists(program, error))
        return fail("sounds cannot be compared: there is no " + program);
    Listening listening({.program = program, .processes = std::max(1U, std::thread::hardware_concurrency())},
                        session.program().files());
    ListeningProgress progress(options.verbose ? ConsoleProgress::Line::taken : ConsoleProgress::Line::free);
    const auto& rows = session.controller().tableDataSource().rows;
    const Result<ComparedSounds> compared =
        compareSounds(rows, listening,
                      {.cancelled = [&] { return session.interrupts().heard(); },
                       .progress = [&](std::size_t done, std::size_t total) { progress.show(done, total); }});
    if (!compared) return ExitCode::interrupted;
    const std::vector<std::size_t> order = recordingOrder(rows, compared.value());
    session.controller().arrangeRows(order);
    sounds = arranged(compared.value(), order);
    return std::nullopt;
}

} // namespace songsweep::cli
