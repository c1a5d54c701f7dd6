// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"

namespace songsweep {

/// The desktop of macOS, by NSWorkspace and NSFileManager. Holds nothing, so that any thread may call it.
class MacDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override;
    Result<void> showInFileManager(const std::string& path) override;
    Result<void> moveToTrash(const std::string& path) override;
    /// With the user's default player.
    Result<void> play(const std::string& path) override;
    /// Does nothing: no player of the system's can be told to stop without knowing which one plays.
    Result<void> stopPlaying() override;
    Result<void> setOutputMuted(bool muted) override;
};

} // namespace songsweep
