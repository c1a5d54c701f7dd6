// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::cli {

/// What `--version` prints: the program, and on a second line the libraries that it runs with. Their versions
/// are those that are loaded, not those that it was built with; but for TagLib, which cannot be asked.
std::string versionText(const std::string& version);

} // namespace songsweep::cli
