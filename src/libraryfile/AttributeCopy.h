// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Gives an open new file the owner, the group, the access lists, the other extended attributes and the
/// permissions of another, and takes away what the folder gave it beyond those.
///
/// Refuses where the owner, the group or an access list cannot be kept: a file that others may read or write,
/// or its owner no longer, is not the same file. `path` is named in the error. Labels that the system gives
/// by itself ("security.…") are kept where it allows it. Nobody gains a right on the way, since the
/// permissions come last and the new file is its owner's alone until then.
Result<void> copyAttributes(int from, int to, const std::string& path);

/// Gives the new file the times of the other.
void copyTimes(int from, int to);

} // namespace songsweep
