// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryWalk.h"
#include "library/TrackStorage.h"

namespace songsweep {

/// The tracks of a library file as a walk made them before a search named its playlist.
///
/// The pass that indexes the file sees the same bytes as the walk; so the walk comes along as far as the end
/// of the tracks, and the search goes on from there.
struct ReadTracks {
    TrackList list;
    LibraryWalk::State walk;
};

} // namespace songsweep
