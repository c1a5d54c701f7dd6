// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"

#include <string>

namespace songsweep {

/// Opens the address (of the web, or of a file or folder) with the program that the user chose for its kind;
/// where the desktop names none, with xdg-open. Returns once that program was started. Thread-safe.
Result<void> openWithDefault(const std::string& url);

/// Shows the file, selected, in the file manager; one that cannot select opens the file's folder.
/// `path` is absolute. Waits up to five seconds for a file manager that is being started. Thread-safe.
Result<void> showFile(const std::string& path);

} // namespace songsweep
