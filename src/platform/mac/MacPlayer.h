// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// The player that scripts are for: "Music" where it is installed and iTunes is not, otherwise "iTunes". Asks
/// the system, which takes milliseconds. Thread-safe.
std::string macPlayerName();

} // namespace songsweep
