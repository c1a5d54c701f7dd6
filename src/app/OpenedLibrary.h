// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace songsweep {

/// What came of a wish to open a library file. A value.
struct OpenedLibrary {
    bool turned = false; ///< the program works with that file now, readable or not
    std::string
        problem; ///< why it cannot be read, or why the one before had to stay; empty where all is well
};

} // namespace songsweep
