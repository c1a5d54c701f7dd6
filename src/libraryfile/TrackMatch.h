// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/LibraryIndex.h"

#include <vector>

namespace songsweep {

/// A library file and its index.
struct IndexedLibrary {
    LibraryFile file;
    LibraryIndex index;

    static Result<IndexedLibrary> open(const std::string& path);
};

/// Which track of an older version of a library is which one of the present.
///
/// A persistent ID tells where it is unique in both. Of several tracks of one ID that are all there, the
/// order tells; where some are missing, those that are not sought are the ones that are there, or else the
/// bytes of their entries tell. A track without one is known by its track ID and the length of its entry.
struct TrackMatch {
    std::vector<std::uint32_t> presentOf; ///< for each old track, `LibraryIndex::noTrack` for none
    std::vector<std::uint32_t> oldOf;     ///< for each present track

    /// `sought` are the old tracks, one truth each, that are thought to be missing. n log n.
    static TrackMatch of(const IndexedLibrary& old, const IndexedLibrary& present,
                         const std::vector<bool>& sought);
};

} // namespace songsweep
