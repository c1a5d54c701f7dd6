// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Moves the file to the Trash that the freedesktop rules give it: the user's own, or that of its mount.
///
/// GIO does it, because it writes the records that file managers restore from with every byte of the path
/// escaped. A symbolic link goes itself, its target stays. Where there is no Trash for the file it stays, and
/// the error says why. Blocks for as long as the file system takes. Thread-safe.
Result<void> moveToTrash(const std::string& path);

} // namespace songsweep
