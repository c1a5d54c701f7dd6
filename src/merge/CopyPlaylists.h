// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <string>
#include <vector>

namespace songsweep {

class LibraryDocument;

/// The names of the playlists that hold each row's track, in their order and each once; the library itself,
/// which has every track, is left out. A row whose persistent ID is not one track's alone has none. One pass
/// over the items.
std::vector<std::vector<std::string>> playlistsOfCopies(LibraryDocument& library,
                                                        const std::vector<TrackRecord*>& rows);

} // namespace songsweep
