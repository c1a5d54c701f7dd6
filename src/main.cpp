// SPDX-License-Identifier: MIT
#include "cli/RunCommand.h"

#include <variant>

using namespace songsweep;

int main(int argumentCount, char** arguments) {
    const auto parsed = cli::parseCommandLine(argumentCount, arguments, SONGSWEEP_VERSION);
    if (const auto* exitCode = std::get_if<cli::ExitCode>(&parsed)) return static_cast<int>(*exitCode);
    return cli::runCommand(std::get<cli::Command>(parsed), argumentCount, arguments, SONGSWEEP_VERSION);
}
