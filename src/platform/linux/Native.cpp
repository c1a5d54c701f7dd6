// SPDX-License-Identifier: MIT
#include "platform/Native.h"

#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/LinuxPreferences.h"

namespace songsweep {

std::unique_ptr<Desktop> nativeDesktop() { return std::make_unique<LinuxDesktop>(); }

std::unique_ptr<Preferences> nativePreferences() {
    return std::make_unique<LinuxPreferences>(LinuxPreferences::userFolders());
}

std::string nativePlayerName() { return "iTunes"; }

std::vector<std::string> nativeLibraryPlaces() {
    return LinuxPreferences(LinuxPreferences::userFolders()).libraryPlaces();
}

std::vector<std::string> nativeLibraries() {
    return LinuxPreferences(LinuxPreferences::userFolders()).libraries();
}

} // namespace songsweep
