// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchCoverage.h"

#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// What was to be searched, and how far the search came.
struct SearchScope {
    std::optional<std::string> playlist; ///< the chosen one
    bool isLibrary = true;               ///< it is the whole library
    int libraryTracks = 0;               ///< as iTunes counts them
    int listedTracks = 0;                ///< those that were compared
    SearchCoverage coverage = {};
};

/// Whether a search has covered what it was to, and what a user ought to know of it.
///
/// Without it, a search that compared nothing ends like one that found nothing.
struct SearchVerdict {
    bool isComplete = true;
    std::vector<std::string> notes; ///< "3 tracks could not be read: …"; mostly none

    static SearchVerdict of(const SearchScope& scope);

    bool operator==(const SearchVerdict&) const = default;
};

} // namespace songsweep
