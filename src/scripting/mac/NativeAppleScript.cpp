// SPDX-License-Identifier: MIT
#include "scripting/NativeAppleScript.h"

#include "platform/Native.h"
#include "scripting/mac/NSAppleScriptRunner.h"

namespace songsweep {

std::unique_ptr<AppleScript> nativeAppleScript() {
    return std::make_unique<NSAppleScriptRunner>(nativePlayerName());
}

} // namespace songsweep
