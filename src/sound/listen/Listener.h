// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "sound/Fingerprint.h"

#include <string>

namespace songsweep {

/// Decodes the first minute of a file and takes its fingerprint; an error where no codec makes sound of it.
///
/// Only containers and codecs of music are tried, and only the sound of a film is. Foreign code that reads
/// foreign bytes: it belongs into a process that may crash. Some milliseconds of work a second of sound.
Result<Fingerprint> listenTo(const std::string& path);

} // namespace songsweep
