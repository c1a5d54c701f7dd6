// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/ItemRule.h"

#include <vector>

namespace songsweep {

/// The bytes that the deletions of an index take out of its file, in order, none overlapping: the entries of
/// the deleted tracks and the playlist items that refer to them, each with the white space before it. An item
/// stays where another track of the same ID stays.
std::vector<ByteRange> rangesOfDeletions(const LibraryIndex& index);

/// Whether `rewritten` is what remains of `original` after the deletion of those tracks: the same tracks,
/// playlists and items in the same order.
bool isRemainderOf(const LibraryIndex& original, const LibraryIndex& rewritten,
                   const ItemRule::Deleted& isDeleted);

} // namespace songsweep
