// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// What a library file holds, as far as one line tells. A value.
struct LibraryContents {
    int tracks = 0;
    int playlists = 0;
    std::int64_t savedSeconds = 0; ///< when the file was written; since 1970 UTC
};

/// The library that the program works with, for whoever shows it. A value.
struct LibraryOverview {
    enum class State {
        unknown,    ///< nobody has looked yet, or it is the one of the system's iTunes
        none,       ///< no library was found, and none was opened
        reading,    ///< it is being indexed
        read,       ///< `contents` are known
        unreadable, ///< `problem` says why
    };

    State state = State::unknown;
    std::string path; ///< empty for none
    LibraryContents contents = {};
    std::string problem = {};
    std::vector<std::string> places = {}; ///< files and folders in which a library was looked for
    std::vector<std::string> others = {}; ///< paths of other libraries that were found
};

} // namespace songsweep
