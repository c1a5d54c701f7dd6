// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxDesktop.h"

#include "platform/linux/MediaPlayer.h"
#include "platform/linux/Opener.h"
#include "platform/linux/SoundServer.h"

namespace songsweep {

Result<void> LinuxDesktop::openUrl(const std::string& url) { return openWithDefault(url); }

Result<void> LinuxDesktop::showInFileManager(const std::string& path) { return showFile(path); }

Result<void> LinuxDesktop::play(const std::string& path) { return playFile(path); }

Result<void> LinuxDesktop::stopPlaying() { return stopPlayer(); }

Result<void> LinuxDesktop::setOutputMuted(bool muted) { return muteDefaultOutput(muted); }

} // namespace songsweep
