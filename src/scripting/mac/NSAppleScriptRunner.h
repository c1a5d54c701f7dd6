// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/AppleScript.h"

#include <mutex>
#include <string>
#include <utility>

namespace songsweep {

/// Runs AppleScript texts by the system, against the real iTunes or Music and the Finder. Only on macOS.
///
/// All texts are written for iTunes; here, and nowhere else, they are addressed to the player that is there.
///
/// Thread-safe: a lock lets one script run at a time, since the system's scripting component is not made for
/// more. A call lasts as long as the application takes to answer.
class NSAppleScriptRunner final : public AppleScript {
  public:
    /// `player` is the application that texts for iTunes go to.
    explicit NSAppleScriptRunner(std::string player)
        : m_player(std::move(player)) {}

    Result<Descriptor> executeAndReturnError(std::string_view source) override;

  private:
    const std::string m_player;
    std::mutex m_lock;
};

} // namespace songsweep
