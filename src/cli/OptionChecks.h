// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"

namespace songsweep::cli {

// Whether the options of a command go together, and with the files that they name. What does not is thrown as
// the parser's own error, a `CLI::ValidationError`, which ends as a usage error. Main thread.

// What is written must not take the place of the library, nor of anything else that is.
void checkLog(const LibraryOptions& options);
void checkTargets(const FindOptions& options);
void checkScanOptions(const ScanOptions& options);

/// Rules that need a word more.
void checkMarkOptions(const MarkOptions& options);
void checkDeleteOptions(const DeleteOptions& options);
void checkRestoreOptions(const RestoreOptions& options);
void checkFinishOptions(const FinishOptions& options);

} // namespace songsweep::cli
