// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"

namespace songsweep {

/// The desktop by freedesktop.org's rules: GIO's Trash and default programs, the file manager and the running
/// player over D-Bus, the sound server's tool. Holds nothing, so that any thread may call it; each call waits
/// some seconds at most.
class LinuxDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override;
    Result<void> showInFileManager(const std::string& path) override;
    Result<void> moveToTrash(const std::string& path) override;
    Result<void> play(const std::string& path) override;
    Result<void> stopPlaying() override;
    Result<void> setOutputMuted(bool muted) override;
};

} // namespace songsweep
