// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"
#include "library/TrackRecord.h"

#include <string>
#include <vector>

namespace songsweep {

class SortKey;

/// Adds the key by which the copies of a group stand in order of plainness: the one of the shortest texts
/// first, "Song" before "Song (feat. X)". Of equally long ones the exact texts decide, and then the time.
void addPlainness(SortKey& key, const TrackRecord& record, const SearchParameters& parameters);

/// How a record differs from another in what is compared, in words: "name differs: feat. Rihanna", "name
/// differs: without feat. Rihanna", "artist differs: Beyonce, not Beyoncé", "1 s longer". Nothing where they
/// are the same exactly.
std::vector<std::string> smallDifferences(const TrackRecord& record, const TrackRecord& other,
                                          const SearchParameters& parameters);

/// For each row of a list in groups how it differs from the plainest copy of its group. Each row's key is
/// made once.
std::vector<std::vector<std::string>> smallDifferencesOf(const std::vector<TrackRecord*>& rows,
                                                         const SearchParameters& parameters);

} // namespace songsweep
