// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/Preferences.h"

#include <memory>

namespace songsweep {

/// The desktop and the preferences of the system that the program runs on.
std::unique_ptr<Desktop> nativeDesktop();
std::unique_ptr<Preferences> nativePreferences();

} // namespace songsweep
