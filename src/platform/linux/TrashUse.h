// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <sys/types.h>

#include <string>

namespace songsweep {

/// Whether files may be taken away from the folder; else why not.
Result<void> canLeave(const std::string& folder);

/// Whether GIO finds or can make a Trash for files of that device in that folder: gives the nearest folder
/// that exists of it already. The error is `notSupported` where there is none, `noPermission` where it cannot
/// be written.
Result<std::string> usableTrash(const std::string& folder, dev_t device);

} // namespace songsweep
