// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

namespace songsweep {

/// Mutes or unmutes the default output by the sound server's own tool: wpctl (PipeWire), else pactl
/// (PulseAudio). Without either there is nothing to mute, which is no error. Waits three seconds at most for
/// a tool. Thread-safe.
Result<void> muteDefaultOutput(bool muted);

} // namespace songsweep
