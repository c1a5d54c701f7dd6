// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/EntryEdit.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace songsweep {

/// One value of a kept copy as it was, and as it is now.
struct RecordedValue {
    std::string before; ///< "" where there was none
    ValueChange after;

    bool operator==(const RecordedValue&) const = default;
};

/// What a copy that stays was given of those that went, as the record of a clean-up tells it. The file as it
/// was before is its backup.
struct RecordedMerge {
    std::string keptId; ///< persistent
    std::int64_t keptTrackId = -1;
    std::vector<std::size_t> removed; ///< by their numbers in the plan
    bool places = false;              ///< items of playlists, too, by the rule of PlaylistPlaces.h
    std::vector<RecordedValue> values;

    bool operator==(const RecordedMerge&) const = default;
};

/// A song of which the last texts gave one copy what others know: they go, and it is changed, in one write
/// or not at all.
struct MergedSong {
    struct Removed {
        std::size_t number = 0; ///< in the plan that is to come
        std::string persistentId;
    };

    std::string keptId; ///< persistent
    std::vector<Removed> removed;
    bool places = false; ///< items of playlists, too
};

} // namespace songsweep
