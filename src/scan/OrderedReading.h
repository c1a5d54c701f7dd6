// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "scan/SoundFacts.h"

#include <cstddef>
#include <functional>

namespace songsweep {

/// Reads many files on several threads, and hands over what was read in the files' order.
///
/// So the library is the same at each scan, however many cores there are. Only a few hundred files are read
/// ahead of the one that is handed over, so that memory stays bounded.
struct OrderedReading {
    std::size_t count = 0;
    unsigned threads = 1;
    /// Reads the file of a number below `count`. Called on any of the threads.
    std::function<Result<SoundFacts>(std::size_t)> read;
    /// Takes what was read of the next file, on the calling thread; false ends the reading early.
    std::function<bool(std::size_t, Result<SoundFacts>)> take;

    /// Returns when all is taken, or `take` said false and the threads have finished the files in hand.
    void run() const;
};

} // namespace songsweep
