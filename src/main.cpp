// SPDX-License-Identifier: MIT
#include "app/RunWindow.h"
#include "cli/ExportResults.h"
#include "cli/RunCommand.h"
#include "platform/Memory.h"
#include "platform/StandardDescriptors.h"

#include <variant>

using namespace songsweep;

namespace {

ProgramOptions programOptions(const cli::LibraryOptions& options) {
    return {.library = options.library,
            .map = options.map,
            .iTunesVersion = options.iTunesVersion,
            .version = SONGSWEEP_VERSION,
            .mapRules = options.mapRules};
}

} // namespace

int main(int argumentCount, char** arguments) {
    openStandardDescriptors();
    survivePipesThatClose();
    returnFreeMemoryAtOnce();
    const auto parsed =
        cli::parseCommandLine(argumentCount, arguments, SONGSWEEP_VERSION SONGSWEEP_VERSION_NOTE);
    if (const auto* exitCode = std::get_if<cli::ExitCode>(&parsed)) return static_cast<int>(*exitCode);
    const auto& command = std::get<cli::Command>(parsed);
    if (const auto* window = std::get_if<cli::LibraryOptions>(&command))
        return runWindow(programOptions(*window), window->log, cli::exportResults, argumentCount, arguments);
    return cli::runCommand(command, argumentCount, arguments, SONGSWEEP_VERSION);
}
