// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep::bench {

/// What one piece of work cost this process.
struct Measurement {
    double cpuSeconds = 0; ///< of all threads
    double peakBytes = 0;  ///< resident at most, less what was resident before
    double leftBytes = 0;  ///< resident after everything was given back, less what was resident before
    int rows = 0;          ///< rows in groups, or texts seen by the bare loop
};

/// Reads the file with the text reader and keeps nothing.
Measurement measureBareLoop(const std::string& file);

/// Searches the library for duplicates by name and artist, on a worker, with this thread handling events.
Measurement measureSearch(const std::string& file, int tracks);

} // namespace songsweep::bench
