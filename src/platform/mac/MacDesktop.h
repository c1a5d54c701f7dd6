// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/mac/MacTrash.h"

namespace songsweep {

/// The desktop of macOS, by NSWorkspace and NSFileManager. Any thread may call it.
class MacDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override;
    Result<void> showInFileManager(const std::string& path) override;
    Trash& trash() override { return m_trash; }
    /// With the user's default player.
    Result<void> play(const std::string& path) override;
    /// Does nothing: no player of the system's can be told to stop without knowing which one plays.
    Result<void> stopPlaying() override;
    Result<void> setOutputMuted(bool muted) override;

  private:
    MacTrash m_trash;
};

} // namespace songsweep
