// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Options.h"

#include <optional>

namespace songsweep::cli {

class LibrarySession;

/// What `--sound` adds to a search: listens to what it found, compares the copies of each group, and puts
/// those of one recording together. The exit code where the program cannot listen or was interrupted, which
/// is told; nothing on success. Main thread, until Ctrl-C.
std::optional<ExitCode> compareSoundsIfAsked(LibrarySession& session, const FindOptions& options);

} // namespace songsweep::cli
