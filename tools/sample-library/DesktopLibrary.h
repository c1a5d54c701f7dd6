// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep::sample {

/// Makes a library to try the program on: `folder`/library.xml and, below `folder`/Music, its audio files.
///
/// Some two hundred tracks with duplicates of every kind, missing files, and playlists of every kind. What
/// stood in `folder`/Music under the same names is overwritten; the library file comes last, so that it is
/// there only when everything else is.
Result<void> makeDesktopLibrary(const std::string& folder);

} // namespace songsweep::sample
