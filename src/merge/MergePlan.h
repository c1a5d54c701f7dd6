// SPDX-License-Identifier: MIT
#pragma once

#include "merge/CopyFacts.h"
#include "merge/MergeChoice.h"
#include "merge/MergeCounts.h"
#include "merge/SongsToMerge.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace songsweep {

/// What a kept copy can be given, in the order of the texts' table of words.
enum class MergedProperty : std::uint8_t {
    plays,
    skips,
    rating,
    albumRating,
    lastPlayed,
    lastSkipped,
    added,
    loved,
    enabled,
    genre,
    year,
    comment,
    composer,
    trackNumber,
    discNumber
};

/// A property that the kept copy is given: a sum, or the value of a copy that goes.
struct MergedValue {
    MergedProperty property = MergedProperty::plays;
    std::int64_t sum = 0;                 ///< of plays and skips
    std::optional<std::size_t> from = {}; ///< the copy whose value it is, by its place among the removed

    bool operator==(const MergedValue&) const = default;
};

/// Places of one song in one playlist.
struct MergedPlaces {
    std::size_t playlist = 0;       ///< as iTunes counts them, from 1
    std::string playlistId = {};    ///< persistent
    std::vector<std::size_t> taken; ///< of each removed copy, how many of its first items the kept one gets
    std::size_t givenUp = 0;        ///< how many of the kept copy's last items go

    bool operator==(const MergedPlaces&) const = default;
};

/// What one song's kept copy is given.
struct SongMerge {
    SongsToMerge::Song copies;
    std::vector<CopyFacts> removed; ///< of each removed copy
    std::vector<MergedValue> values;
    std::vector<MergedPlaces> places;

    bool isNothing() const { return values.empty() && places.empty(); }
};

/// Who carries a plan out. The system's iTunes puts a song at the end of a playlist alone, and lets nobody
/// set the day on which it was added.
enum class MergeRoad : std::uint8_t { libraryFile, iTunes };

/// What copies that stay are given of those that go, all songs of it: a value, made before the first text.
struct MergePlan {
    MergeRoad road = MergeRoad::libraryFile;
    std::vector<SongMerge> songs; ///< those that are given something
    MergeCounts counts;
};

/// The values that a kept copy is given by the facts of all copies.
///
/// Plays and skips are summed up; of ratings the highest counts, of the last plays and skips the latest, of
/// the days on which they were added the earliest; loved and enabled if any was. What the kept copy lacks
/// comes from the first copy that has it.
std::vector<MergedValue> mergedValues(const CopyFacts& kept, const std::vector<CopyFacts>& removed,
                                      const MergeChoice& choice, MergeRoad road = MergeRoad::libraryFile);

/// The places of a song in one playlist, whose items are given by their copies in order (0 is the kept one,
/// the others by their places among the removed, from 1). See PlaylistPlaces.h for the rule.
MergedPlaces mergedPlaces(std::size_t playlist, const std::vector<std::uint32_t>& items,
                          std::size_t removedCount);

} // namespace songsweep
