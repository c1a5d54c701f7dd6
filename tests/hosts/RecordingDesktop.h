// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"
#include "support/RecordingTrash.h"

#include <string>
#include <vector>

namespace songsweep::test {

/// A desktop that only notes what it is asked for, its Trash included.
class RecordingDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override { return note("open " + url); }
    Result<void> showInFileManager(const std::string& path) override { return note("show " + path); }
    Trash& trash() override { return recordingTrash; }
    Result<void> play(const std::string& path) override { return note("play " + path); }
    Result<void> stopPlaying() override { return note("stop"); }
    Result<void> setOutputMuted(bool muted) override { return note(muted ? "mute" : "unmute"); }

    std::vector<std::string> calls;
    RecordingTrash recordingTrash{calls};

  private:
    Result<void> note(std::string call) {
        calls.push_back(std::move(call));
        return {};
    }
};

} // namespace songsweep::test
