// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep::test {

/// A track of a made-up library of which it is known what it is a recording of.
struct KnownTrack {
    std::string name;
    std::string artist;
    std::string album;
    int seconds = 0;
    std::int16_t trackNumber = 0;
    int recording = 0;
    int alteration = -1; ///< in what way it is a copy, by number; -1 for the recording itself
};

/// How many ways there are in which a copy's tags differ from the recording's, and what each is called.
int alterationCount();
const char* alterationName(int alteration);

/// A library of so many recordings, each once, with an altered copy of two in five of them, all alterations
/// in equal parts. One recording in ten is another version of its neighbour (live, remix, demo) of nearly
/// its length, and one in fifty another performance of equal name and artist that is some seconds longer or
/// shorter. Always the same.
std::vector<KnownTrack> alteredCopies(int recordings);

} // namespace songsweep::test
