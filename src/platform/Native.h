// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/Preferences.h"

#include <memory>
#include <string>
#include <vector>

namespace songsweep {

/// The desktop and the preferences of the system that the program runs on.
std::unique_ptr<Desktop> nativeDesktop();
std::unique_ptr<Preferences> nativePreferences();

/// What the system's player is called, for scripts and alerts: "iTunes", or "Music" where that is what there
/// is.
std::string nativePlayerName();

/// The files and folders in which those preferences look for a library, for telling the user.
std::vector<std::string> nativeLibraryPlaces();
/// The library files that are there; none where the system's iTunes knows its own.
std::vector<std::string> nativeLibraries();

} // namespace songsweep
