// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep::sample {

/// Makes a folder of music: `files` small sound files of every format in turn, ten in each album, with true
/// tags and, one in five, a picture. Of ten songs, one is there a second time in another format and bit rate.
/// Always the same for one number; what is there already is overwritten.
Result<void> makeSoundFolder(const std::string& folder, int files);

} // namespace songsweep::sample
