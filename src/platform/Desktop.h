// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

class Trash;

/// What the desktop does for the program. Paths are local POSIX paths (already mapped, see Files).
///
/// An interface with one implementation a platform. Callable from any thread; calls may block for seconds.
class Desktop {
  public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Opens a web address in the user's browser.
    virtual Result<void> openUrl(const std::string& url) = 0;
    /// Shows the file, selected, in the file manager.
    virtual Result<void> showInFileManager(const std::string& path) = 0;
    virtual Trash& trash() = 0;
    virtual Result<void> play(const std::string& path) = 0;
    virtual Result<void> stopPlaying() = 0;
    virtual Result<void> setOutputMuted(bool muted) = 0;
};

} // namespace songsweep
