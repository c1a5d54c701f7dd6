// SPDX-License-Identifier: MIT
#pragma once

#include "scan/PlaylistEntries.h"

#include <string_view>
#include <vector>

namespace songsweep {

/// The tracks of an XSPF file that have a location, up to the place where it is no longer well-formed.
/// Entities that a file declares itself are not replaced. Linear, thread-safe.
std::vector<PlaylistEntry> entriesOfXspf(std::string_view bytes);

/// Whether the file is well-formed to its end.
bool isWholeXspf(std::string_view bytes);

} // namespace songsweep
