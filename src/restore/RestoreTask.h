// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace songsweep {

/// Who restores a clean-up, or finishes one, and how that is followed.
struct RestoreTask {
    std::string program; ///< named in the record
    std::string purpose; ///< told to others who find the library locked
    /// Asked before the library is written and before each file.
    std::function<bool()> isCancelled = [] { return false; };
    /// Told before each file: how many tracks and files are done, of how many.
    std::function<void(std::size_t done, std::size_t all)> progress = [](std::size_t, std::size_t) {};
};

} // namespace songsweep
