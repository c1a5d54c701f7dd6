// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "libraryfile/LibraryIndex.h"

#include <vector>

namespace songsweep {

/// Whether records that a reader made of a library file are the tracks of its index, one for one in file
/// order, by their persistent IDs.
///
/// Reader and index go through a file each in its own way, and may read odd markup (a comment inside an ID,
/// an ID inside another value) differently; a track is deleted by the reader's ID in the index. Tracks that
/// are deleted in the index count as gone. Linear, some hundred instructions a track. Any thread.
bool areSameTracks(const std::vector<TrackSlot>& tracks, const std::vector<TrackRecord*>& records);

} // namespace songsweep
