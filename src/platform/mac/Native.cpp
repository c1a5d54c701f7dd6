// SPDX-License-Identifier: MIT
#include "platform/Native.h"

#include "platform/RecentFiles.h"
#include "platform/mac/MacDesktop.h"
#include "platform/mac/MacPlayer.h"
#include "platform/mac/MacPreferences.h"

namespace songsweep {

std::unique_ptr<Desktop> nativeDesktop() { return std::make_unique<MacDesktop>(); }

std::unique_ptr<Preferences> nativePreferences() { return std::make_unique<MacPreferences>(); }

std::string nativePlayerName() { return macPlayerName(); }

std::vector<std::string> nativeLibraryPlaces() {
    return {MacPreferences().homeFolder() + iAppsPropertyListPlace};
}

std::vector<std::string> nativeLibraries() { return {}; }

std::unique_ptr<RecentFiles> nativeRecentFiles() { return nullptr; }

} // namespace songsweep
