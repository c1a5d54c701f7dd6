// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// Questions about a local name itself, which is looked at as it is written: no path map, no other form.

/// The one name of the file at the path, links followed; the path itself where nothing exists there.
std::string canonicalPath(const std::string& localPath);

/// Whether the name stands in its folder, be it that of a file, or of a link that leads nowhere.
bool isNameTaken(const std::string& localPath);

} // namespace songsweep
