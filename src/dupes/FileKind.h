// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace songsweep {

/// The extension of a path's last component, as written: "m4a" of "/a/b.m4a"; empty where there is none.
std::string_view fileExtension(std::string_view path);

/// The kind of a file: its extension in upper case.
std::string fileKind(std::string_view path);

/// Whether the path is of the kind; the kind is compared exactly, so it must be in upper case. Allocates only
/// for extensions that are not plain ASCII.
bool isOfKind(std::string_view path, std::string_view kind);

/// The kinds of the rows' files in the order of their first appearance.
std::vector<std::string> kindsOf(const std::vector<TrackRecord*>& rows);

} // namespace songsweep
