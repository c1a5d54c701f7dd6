// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// One `--map FROM=TO`, as it was given.
struct MapRule {
    std::string from;
    std::string to;
};

} // namespace songsweep
