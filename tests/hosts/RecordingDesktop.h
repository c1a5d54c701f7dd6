// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Desktop.h"

#include <string>
#include <vector>

namespace songsweep::test {

/// A desktop that only notes what it is asked for, and refuses the Trash where told to.
class RecordingDesktop final : public Desktop {
  public:
    Result<void> openUrl(const std::string& url) override { return note("open " + url); }
    Result<void> showInFileManager(const std::string& path) override { return note("show " + path); }
    Result<void> moveToTrash(const std::string& path) override {
        if (!trashRefusal.empty()) return Error{Error::Code::noPermission, trashRefusal};
        return note("trash " + path);
    }
    Result<void> play(const std::string& path) override { return note("play " + path); }
    Result<void> stopPlaying() override { return note("stop"); }
    Result<void> setOutputMuted(bool muted) override { return note(muted ? "mute" : "unmute"); }

    std::vector<std::string> calls;
    std::string trashRefusal;

  private:
    Result<void> note(std::string call) {
        calls.push_back(std::move(call));
        return {};
    }
};

} // namespace songsweep::test
