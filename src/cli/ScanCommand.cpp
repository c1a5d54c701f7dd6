// SPDX-License-Identifier: MIT
#include "cli/CommandLog.h"
#include "cli/Commands.h"
#include "cli/FolderReading.h"
#include "cli/InterruptWatch.h"
#include "cli/Output.h"
#include "library/ValueFormats.h"
#include "libraryfile/LibraryFile.h"
#include "platform/DataFolder.h"
#include "platform/Words.h"
#include "scan/ScanProgress.h"

#include <algorithm>
#include <string>

namespace songsweep::cli {

namespace {

/// "6000 tracks: 12 new, 3 changed, 1 moved, 2 gone"; what did not happen is left out.
std::string summary(const ScanReport& report) {
    std::string text = countedWords("ScanCommand", "%1 tracks", "1 track", report.tracks);
    const char* separator = ": ";
    const auto add = [&](std::size_t count, const Countable& what) {
        if (count == 0) return;
        text += separator + countedWords(what, count);
        separator = ", ";
    };
    add(report.added, countable("ScanCommand", "%1 new", "1 new"));
    add(report.changed, countable("ScanCommand", "%1 changed", "1 changed"));
    add(report.moved, countable("ScanCommand", "%1 moved", "1 moved"));
    add(report.vanished, countable("ScanCommand", "%1 gone", "1 gone"));
    return text;
}

/// A library file as others import it, which appears whole or not at all.
Result<void> copyLibrary(const std::string& library, const std::string& target) {
    const Result<LibraryFile> file = LibraryFile::open(library);
    if (!file) return file.error();
    Result<Output> output = Output::open(target);
    if (!output) return output.error();
    constexpr std::uint64_t pieceSize = std::uint64_t{1} << 20;
    const std::uint64_t size = file.value().stamp().size;
    for (std::uint64_t begin = 0; begin < size; begin += pieceSize) {
        const Result<std::string> piece = file.value().read({begin, std::min(pieceSize, size - begin)});
        if (!piece) return piece.error();
        output.value().write(piece.value());
    }
    return output.value().finish();
}

ExitCode codeOf(const ScanReport& report) {
    if (report.end == ScanReport::End::cancelled) return ExitCode::interrupted;
    return report.unread.empty() ? ExitCode::done : ExitCode::failed;
}

} // namespace

ExitCode runScan(const ScanOptions& options, const std::string&) {
    const Result<std::unique_ptr<CommandLog>> log = CommandLog::open(options);
    if (!log) return fail(log.error().message);
    const InterruptWatch interrupts([] {});
    const Result<FolderLibrary> place = FolderLibrary::of(options.folder, dataFolder());
    if (!place) return fail(place.error().message);
    const Result<ScanReport> report =
        readFolder(place.value(), *log.value(), [&] { return interrupts.heard(); });
    if (!report) return failToWrite(report.error());
    if (!options.output.empty())
        if (const Result<void> copied = copyLibrary(place.value().library, options.output); !copied)
            return failToWrite(copied.error());
    Result<Output> output = Output::open({});
    if (!output) return fail(output.error().message);
    output.value().write(summary(report.value()) + "\n" +
                         (options.output.empty() ? place.value().library : options.output) + "\n");
    if (const Result<void> written = output.value().finish(); !written) return failToWrite(written.error());
    if (!report.value().unread.empty())
        tell(filled(words("ScanCommand", "%1; --verbose tells which, and why"),
                    {unreadFilesText(report.value().unread.size())}));
    return codeOf(report.value());
}

} // namespace songsweep::cli
