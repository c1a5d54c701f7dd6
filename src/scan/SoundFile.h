// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scan/SoundFacts.h"

#include <string>

namespace songsweep {

/// Reads what a sound file says of itself, by TagLib.
///
/// `path` is the file as the system finds it; a file without a title is named after `namedPath`. An error,
/// with a reason in words, where the file cannot be read, or where no sound is found in it. Whatever bytes it
/// has, nothing else comes of it. Any thread, several at once.
Result<SoundFacts> readSoundFile(const std::string& path, const std::string& namedPath);

} // namespace songsweep
