// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "sound/Listening.h"

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// A copy as it is compared: what the comparison must know of its record.
struct ComparedCopy {
    std::string location;
    int seconds = 0; ///< its length, by the library
    std::int32_t gid = 0;
};

/// The copies of rows, whose records may change while a worker compares them.
std::vector<ComparedCopy> comparedCopies(const std::vector<TrackRecord*>& rows);

/// What a comparison found.
struct ComparedSounds {
    std::vector<SoundFinding> findings; ///< one for each copy
    std::vector<std::string> unread;    ///< "/music/Song.mp3: brings the decoder down", a line each
};

/// Listens to the files of the copies and compares those of each group; an error where it was cancelled. A
/// group's copies are neighbours. A copy whose file is missing is not readable. Decoding is by far the most
/// of it. Any thread.
Result<ComparedSounds> compareSounds(const std::vector<ComparedCopy>& copies, Listening& listening,
                                     const ListeningWatch& watch);

/// Puts the findings into the records of the rows that were compared.
void keepFindings(const std::vector<TrackRecord*>& rows, const std::vector<SoundFinding>& findings);

} // namespace songsweep
