// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace songsweep {

struct TrashFolder;

/// Moves a file to the Trash under the first free number of its name from a given one on, with the same
/// record as GIO's.
///
/// GIO tries the numbers from 2 on for each file, so that of n files with one name ("01 Intro.mp3") the last
/// costs n attempts, and all of them the square of n; who knows the last number begins behind it. The record
/// comes first and takes the name, for every program that keeps to the rules of the Trash.
///
/// Gives the number; nothing where it could not be done, and then file and Trash are as before. The folder's
/// parts exist, since it has files of that name. Some ten system calls. Thread-safe.
std::optional<int> moveToNumber(const std::string& path, const TrashFolder& folder, int firstNumber);

} // namespace songsweep
