// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// The running player that the desktop's media keys would reach (MPRIS), one that is playing first.
///
/// Every question to a player waits a second at most, so that one that hangs holds nobody up. Thread-safe.

/// Hands the file to a running player, or, where none takes it, to the user's default player for it.
/// `path` is absolute.
Result<void> playFile(const std::string& path);

/// Stops the running player; without one there is nothing to stop, which is no error.
Result<void> stopPlayer();

} // namespace songsweep
