// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace songsweep {

class Files;

/// Whether the file at a track's location is, at this moment, one that could stand for a song whose other
/// copies go: a regular file, not empty, readable. Two looks at the file system. Any thread.
bool isWorkingCopy(const Files& files, std::string_view location);

} // namespace songsweep
