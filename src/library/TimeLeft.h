// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// "about 20 seconds left", "about 1 minute left": in steps that do not flicker, ten seconds, then minutes.
std::string timeLeftText(int seconds);

} // namespace songsweep
