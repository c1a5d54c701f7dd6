// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// The first read error of a library file: its line (from 1; 0 where the file itself failed) and the reason.
struct ReadError {
    int line = 0;
    std::string reason;

    bool operator==(const ReadError&) const = default;
};

} // namespace songsweep
