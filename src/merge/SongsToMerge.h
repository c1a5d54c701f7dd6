// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"
#include "library/TrackStorage.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace songsweep {

/// Of the copies of one song, marked ones among them, the one that the reasons of all these marks name as the
/// kept one; null where they do not. Any thread.
using KeptByReason = std::function<const TrackRecord*(const std::vector<TrackRecord*>& copies)>;

/// The songs of which copies go and one is to have what they know, taken from the rows at one moment.
///
/// That is the only copy that stays, or else the one that the marks' reasons name. Where several stay and
/// none is named, nobody knows whose the places and plays are to be, so that such a song is left as it is,
/// and counted. Where sounds were compared a song is a recording. A copy that cannot be named to iTunes
/// stays, whatever its mark. The records are keys and never read through, so that another thread may work
/// with this while the rows change; the texts are those of the storage, which is kept. A value; linear in the
/// rows.
struct SongsToMerge {
    struct Copy {
        const TrackRecord* record = nullptr;
        Text pid;
        std::size_t number = 0; ///< of a copy that goes: its place among the marked rows
    };
    struct Song {
        Copy kept;
        std::vector<Copy> removed;
    };

    explicit SongsToMerge(const std::vector<TrackRecord*>& rows,
                          std::shared_ptr<const TrackStorage> kept = nullptr,
                          const KeptByReason& keptByReason = {});

    std::vector<Song> songs;
    std::size_t keepSeveral = 0; ///< songs that lose copies and keep two or more
    std::shared_ptr<const TrackStorage> storage;
};

} // namespace songsweep
