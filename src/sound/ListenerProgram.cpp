// SPDX-License-Identifier: MIT
#include "sound/ListenerProgram.h"

#include <QCoreApplication>

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <thread>

namespace songsweep {

std::string listenerProgram() {
    const std::string here = QCoreApplication::applicationDirPath().toStdString();
    const std::string installed = here + "/" SONGSWEEP_LISTENER_FOLDER "/songsweep-listen";
    std::error_code error;
    return std::filesystem::exists(installed, error) ? installed : here + "/songsweep-listen";
}

bool isProgram(const std::string& path) { return ::access(path.c_str(), X_OK) == 0; }

ListeningSettings listeningBy(const std::string& program) {
    return {.program = program, .processes = std::max(1U, std::thread::hardware_concurrency())};
}

} // namespace songsweep
