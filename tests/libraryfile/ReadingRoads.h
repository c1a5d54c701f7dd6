// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchCoverage.h"
#include "library/WorkerEvent.h"

#include <string>
#include <vector>

namespace songsweep::test {

/// What a search's reader did with a library file, and what it left.
struct RoadOutcome {
    std::vector<std::string> trace; ///< log lines as they are but for seconds, events as "> name"
    std::vector<std::string> errors;
    std::vector<std::string> scripts; ///< that iTunes was asked
    std::vector<std::vector<std::string>> records;
    SearchCoverage::Playlist playlist = SearchCoverage::Playlist::none;
    int playlistTracks = 0;

    bool operator==(const RoadOutcome&) const = default;
};

/// For a person.
std::string shown(const RoadOutcome& outcome);

/// The outcomes of one file by the roads that a search may take.
struct RoadOutcomes {
    bool isLibrary = false; ///< the index can be read; nothing else is told without it
    bool isPlain = false;   ///< and vouches for the file, so that libxml2 is not needed
    RoadOutcome parsed;     ///< by libxml2
    RoadOutcome fromTracks; ///< going on from tracks that were read with the index
    RoadOutcome scanned;    ///< by the scanner of plain files from the beginning
};

/// Searches the file, whose playlist of this name is chosen, by every road; a run ends after its first event
/// of the name, and where it meets a read error.
RoadOutcomes readByAllRoads(const std::string& file, const std::string& playlist,
                            EventName cancelAt = EventName::readError);

/// How the index of a plain file differs from that of the same file with "<key >" for "<key>", which has it
/// read tag by tag and not in properties; empty where it does not. The file of this name is written.
std::string differenceOfIndexes(const std::string& file, const std::string& contents);

} // namespace songsweep::test
