// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// The folder in which programs keep what they make for the user: $XDG_DATA_HOME, or ~/.local/share where
/// that says nothing; on a Mac "Application Support". It need not exist. Thread-safe.
std::string dataFolder();

} // namespace songsweep
