// SPDX-License-Identifier: MIT
#pragma once

#include "cli/CommandDescription.h"

#include <string>

namespace songsweep {

/// What stands in the head of the page.
struct ManPageHead {
    std::string version; ///< "1.1"
    std::string date;    ///< "2026-11-22"
};

/// The manual page, in mdoc: `page` with its line "@OPTIONS@" replaced by the options that count everywhere,
/// "@COMMANDS@" by the commands with theirs, and the words "@DATE@" and "@VERSION@" by the head.
///
/// A command lists the options that are not told before it, and names the others. Pure; any thread.
std::string manPage(std::string page, const cli::CommandDescription& program, const ManPageHead& head);

} // namespace songsweep
