// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "platform/linux/LinuxTrash.h"

namespace songsweep {

/// The desktop by freedesktop.org's rules: GIO's Trash and default programs, the file manager and the running
/// player over D-Bus, the sound server's tool. Any thread may call it; each call waits some seconds at most.
class LinuxDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override;
    Result<void> showInFileManager(const std::string& path) override;
    Trash& trash() override { return m_trash; }
    Result<void> play(const std::string& path) override;
    Result<void> stopPlaying() override;
    Result<void> setOutputMuted(bool muted) override;

  private:
    LinuxTrash m_trash;
};

} // namespace songsweep
