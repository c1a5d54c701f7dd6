// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/ItemRule.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace songsweep {

/// The bytes that the deletions of an index take out of its file, in order, none overlapping: the entries of
/// the deleted tracks and the playlist items that refer to them, each with the white space before it. An item
/// stays where another track of the same ID stays.
std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index);

/// The same, but for items that stay nevertheless; it is asked of those alone that would go.
using StaysInPlaylist = std::function<bool(std::uint32_t playlist, std::uint32_t item)>;
std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index, const StaysInPlaylist& stays);

/// Whether `rewritten` is what remains of `original` after the deletion of those tracks: the same tracks,
/// playlists and items in the same order.
bool isRemainderOf(const LibraryIndex& original, const LibraryIndex& rewritten,
                   const ItemRule::Deleted& isDeleted);

} // namespace songsweep
