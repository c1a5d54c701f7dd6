// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

/// The library files in a folder and in its folders "iTunes" and "Music", by the names that iTunes and its
/// successor give them; the likeliest first. A few stats; thread-safe.
std::vector<std::string> usualLibraries(const std::string& folder);

/// Whether the file at the path has one of those names.
bool hasUsualLibraryName(const std::string& path);

/// Those folders.
std::vector<std::string> usualLibraryFolders(const std::string& folder);

} // namespace songsweep
