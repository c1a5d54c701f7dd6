// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Whether a clean-up of the library could begin, as far as can be seen without changing anything: whether
/// its file can be replaced (folder, owner, group, immutable, mounted over, file system read-only), and
/// whether there is room for the backup and a new version. For a dry run; `LibraryDocument::beginCleanup`
/// tries it. Some system calls.
Result<void> foreseeCleanup(const std::string& library);

} // namespace songsweep
