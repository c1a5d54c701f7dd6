// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

/// What the copy that stays is given of those that go: as somebody chose before a deletion. A value.
struct MergeChoice {
    bool places = false;  ///< their places in playlists
    bool history = false; ///< their plays, skips, ratings, dates, and whether they are loved and enabled
    bool fillIns = false; ///< what it lacks itself: genre, year, comments, composer, track and disc number

    bool isAny() const { return places || history || fillIns; }
    bool operator==(const MergeChoice&) const = default;
};

} // namespace songsweep
