// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scripting/Descriptor.h"

#include <string_view>

namespace songsweep {

/// Runs AppleScript texts. Three implementations: the system's, the interpreter with the embedded iTunes and
/// Finder, and a recording one for tests.
///
/// Thread-safe: one script runs at a time, and a second caller waits for it.
class AppleScript {
  public:
    AppleScript() = default;
    AppleScript(const AppleScript&) = delete;
    AppleScript& operator=(const AppleScript&) = delete;
    virtual ~AppleScript() = default;

    /// Compiles and runs the text (UTF-8). A script without a result gives the missing value; a failed one
    /// gives the reason, which most callers do not look at.
    virtual Result<Descriptor> executeAndReturnError(std::string_view source) = 0;
};

} // namespace songsweep
