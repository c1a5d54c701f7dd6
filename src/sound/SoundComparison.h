// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "sound/Listening.h"
#include "sound/SoundSets.h"

#include <vector>

namespace songsweep {

/// What the comparison of a copy with those of its group came to.
enum class SoundVerdict { same, differs, unsure, notReadable };

/// The copies of all groups, by row.
struct ComparedSounds {
    std::vector<SoundPlace> places;
    std::vector<SoundVerdict> verdicts;
};

/// Listens to the files of the rows and compares the copies of each group; an error where it was cancelled.
/// A copy whose file is missing is not readable. Decoding is by far the most of it.
Result<ComparedSounds> compareSounds(const std::vector<TrackRecord*>& rows, Listening& listening,
                                     const ListeningWatch& watch);

/// "same", "differs", "unsure" or "not readable".
const char* soundWord(SoundVerdict verdict);

} // namespace songsweep
