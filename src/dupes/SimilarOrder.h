// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchParameters.h"
#include "library/TrackRecord.h"

#include <vector>

namespace songsweep {

/// The records of a track list in the order of their groups.
struct GroupOrder {
    std::vector<TrackRecord*> records;
    std::vector<bool> joined; ///< by place: whether the record is in the group of the one before it
};

/// The order in which a search with small differences groups records.
///
/// Records of one key (LooseKeys) are sorted by time and cut by it (TimeCut), and each piece is a group; in
/// it they stand by plainness (SmallDifference.h). Which records are together does not depend on their order.
/// A number that begins a name is left out where it is the track's own in all copies of that name: a song
/// called "7 Seconds" keeps it, though it may be track 7 somewhere. Records of equal texts and times are
/// never parted. One key a record, made once; one sort.
GroupOrder similarOrder(const std::vector<TrackRecord*>& records, const SearchParameters& parameters);

} // namespace songsweep
