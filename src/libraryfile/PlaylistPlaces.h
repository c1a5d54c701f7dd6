// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace songsweep {

/// Whether people put songs into a playlist, so that an item of it is a place that somebody gave to a song.
/// Smart playlists, folders, and those that iTunes fills itself have none. The library has to be left out
/// besides, see `placesOf`.
bool isFilledByPeople(const PlaylistSlot& playlist);

/// The playlists of a file, by their numbers in it, that have places: those filled by people, but for the
/// library itself, the one flagged as master, else the first.
std::vector<bool> placesOf(const LibraryIndex& index);

/// What becomes of an item of one song in a playlist when copies of the song make way for one of them.
enum class PlaceFate : std::uint8_t { stays, goesToKept, isGivenUp };

/// Of each item of one song in one playlist, in their order, given by the number of its copy (0 is the one
/// that is kept).
///
/// Each item of a removed copy becomes one of the kept copy. Where the song would then stand there more often
/// than any one of its copies did, the later items go. Linear but for the number of copies.
std::vector<PlaceFate> placeFates(const std::vector<std::uint32_t>& copies);

} // namespace songsweep
