// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <memory>

namespace songsweep {

/// What runs texts against the real iTunes, or Music, and Finder; null on a system that has none.
std::unique_ptr<AppleScript> nativeAppleScript();

} // namespace songsweep
