// SPDX-License-Identifier: MIT
#include "cli/FolderReading.h"

#include "cli/Commands.h"
#include "platform/DataFolder.h"
#include "platform/UsualLibraries.h"
#include "platform/Words.h"
#include "scan/ScanProgress.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace songsweep::cli {

namespace {

/// One line of standard error, where that is a terminal, drawn anew a few times a second.
class ReadingLine {
  public:
    ReadingLine() = default;
    ReadingLine(const ReadingLine&) = delete;
    ReadingLine& operator=(const ReadingLine&) = delete;
    ~ReadingLine() {
        if (m_shown) std::fputs("\r\033[K", stderr);
    }

    void show(std::size_t read, std::size_t toRead) {
        constexpr std::chrono::milliseconds rest{200};
        const auto now = Clock::now();
        if (!m_terminal || now - m_drawn < rest) return;
        const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_begun);
        std::fprintf(stderr, "\r\033[K%s", scanProgressText(read, toRead, elapsed).c_str());
        m_drawn = now;
        m_shown = true;
    }

  private:
    using Clock = std::chrono::steady_clock;

    bool m_terminal = ::isatty(STDERR_FILENO) == 1;
    bool m_shown = false;
    Clock::time_point m_begun = Clock::now();
    Clock::time_point m_drawn = m_begun;
};

/// On standard error as a count, and each for the reports.
void noteUnread(const std::vector<UnreadPath>& unread, const std::string& folder, LibraryOptions& options) {
    if (unread.empty()) return;
    tell(
        options.library + ": " +
        filled(words("ScanCommand", "%1; --verbose tells which, and why"), {unreadFilesText(unread.size())}));
    for (const UnreadPath& path : unread)
        options.unread.push_back(folder + "/" + path.path + ": " + path.reason);
}

} // namespace

Result<ScanReport> readFolder(const FolderLibrary& place, Log& log,
                              const std::function<bool()>& isCancelled) {
    ReadingLine line;
    Result<ScanReport> report =
        scanFolder(place, {.isCancelled = isCancelled, .progress = [&](std::size_t read, std::size_t toRead) {
                               line.show(read, toRead);
                           }});
    if (report)
        for (const UnreadPath& unread : report.value().unread)
            log.line(unread.path + ": " + unread.reason);
    return report;
}

Result<std::string> libraryFileOf(const std::string& path) {
    if (!isFolder(path)) return path;
    if (!isFolderOfMusic(path)) return usualLibraries(path).front();
    const Result<FolderLibrary> place = FolderLibrary::of(path, dataFolder());
    if (!place) return place.error();
    return place.value().library;
}

std::optional<ExitCode> turnToFolderLibrary(LibraryOptions& options, Log& log,
                                            const std::function<bool()>& isCancelled) {
    if (!isFolderOfMusic(options.library)) {
        if (isFolder(options.library)) options.library = usualLibraries(options.library).front();
        return {};
    }
    const Result<FolderLibrary> place = FolderLibrary::of(options.library, dataFolder());
    if (!place) return fail(place.error().message);
    const Result<ScanReport> report = readFolder(place.value(), log, isCancelled);
    if (isCancelled()) return ExitCode::interrupted;
    if (!report && report.error().code != Error::Code::busy) return fail(report.error().message);
    if (report && report.value().tracks == 0)
        return fail(options.library + ": " + words("FolderReading", "there is no music in this folder"));
    if (!report)
        tell(filled(words("FolderReading", "%1; its library is taken as it is"), {report.error().message}));
    if (report) noteUnread(report.value().unread, place.value().folder, options);
    options.library = place.value().library;
    return {};
}

} // namespace songsweep::cli
