// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Renames a file, or a link itself, to a name of the same file system that nothing has.
///
/// Never over anything, not even over what appears at that moment: the kernel sees to it, and where the file
/// system cannot, a link or an empty file takes the name first. The error is `alreadyExists` where something
/// has the name. Thread-safe.
Result<void> moveToFreeName(const std::string& from, const std::string& to);

} // namespace songsweep
