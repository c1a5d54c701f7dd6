// SPDX-License-Identifier: MIT
#pragma once

#include "sound/Fingerprint.h"

#include <cstdint>
#include <vector>

namespace songsweep {

/// One copy of a group, as far as its sound is known.
struct HeardCopy {
    const Fingerprint* fingerprint = nullptr; ///< null where the file could not be heard
    int seconds = 0;                          ///< its length, by the library; 0 where that says nothing
};

/// Where a copy stands among those of its group.
struct SoundPlace {
    /// Of the copies that are one recording, from 1 in their order; 0 where it could not be compared.
    std::int32_t set = 0;
    bool isUnsure = false; ///< against another set: it may be of that recording, and is kept apart
    /// Of the bits, 0 to 1: with its set where that has others, else with the set most like it.
    double agreement = 0;

    bool operator==(const SoundPlace&) const = default;
};

/// Finds out which copies of a group are one recording.
///
/// Each copy is compared with one of each set, the longest sound, and joins the set that it agrees with most;
/// where it is not the same as any it begins a set. So a set holds no chain: all are the same as its first.
/// Copies whose lengths differ by more than ten seconds are unsure at best: only their beginnings were heard.
/// With more than sixteen sets a copy is compared only with those that have items in common with it, which
/// copies of one recording always have: 10 000 copies are compared in seconds.
std::vector<SoundPlace> soundSets(const std::vector<HeardCopy>& copies);

} // namespace songsweep
