// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// A playlist file that a clean-up takes lines out of, as its record tells it: enough to put the lines back
/// byte for byte, and to find their places in a file that somebody changed meanwhile. A value.
struct RecordedPlaylist {
    enum class State : std::uint8_t { begun, rewritten, failed };

    /// One run of bytes that goes.
    struct Cut {
        std::size_t entry = 0; ///< of the playlist's, counted from 0; its cuts come back together
        std::uint64_t at = 0;  ///< offset in the file as it was
        std::string file;      ///< path of the track's file that the lines name
        std::string bytes;
        std::string
            before;        ///< what stays in front of it, a line or its last part; "" at the file's beginning
        std::string after; ///< what stays behind it, the same

        bool operator==(const Cut&) const = default;
    };

    std::string path;       ///< without links
    std::uint64_t hash = 0; ///< of the file without the cuts
    std::vector<Cut> cuts;  ///< in the file's order
    State state = State::begun;

    bool operator==(const RecordedPlaylist&) const = default;
};

} // namespace songsweep
