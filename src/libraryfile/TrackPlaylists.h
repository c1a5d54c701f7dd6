// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace songsweep {

class LibraryDocument;

/// The names of the playlists that hold each of some tracks, by their persistent IDs: in the order of the
/// playlists and each once. Left out are folders and what lists tracks by their kind, as the library itself
/// does. An ID that is not one track's alone has none.
///
/// One pass over the items of all playlists, some milliseconds for a million.
std::vector<std::vector<std::string>> playlistsOfTracks(LibraryDocument& library,
                                                        const std::vector<std::string>& persistentIds);

} // namespace songsweep
