// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <mutex>

namespace songsweep {

/// Runs AppleScript texts by the system, against the real iTunes and Finder. Only on macOS.
///
/// Thread-safe: a lock lets one script run at a time, since the system's scripting component is not made for
/// more. A call lasts as long as the application takes to answer.
class NSAppleScriptRunner final : public AppleScript {
  public:
    Result<Descriptor> executeAndReturnError(std::string_view source) override;

  private:
    std::mutex m_lock;
};

} // namespace songsweep
