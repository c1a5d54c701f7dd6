// SPDX-License-Identifier: MIT
#include "scripting/NativeAppleScript.h"

namespace songsweep {

std::unique_ptr<AppleScript> nativeAppleScript() { return nullptr; }

} // namespace songsweep
