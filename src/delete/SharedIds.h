// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace songsweep {

/// The tracks of the whole library that share a persistent ID, each as "“Song” by Artist"; none where one
/// alone has it, or the library does not tell. Called on any thread.
using TracksOfId = std::function<std::vector<std::string>(std::string_view pid)>;

/// Finds the marked tracks with whom iTunes would delete others that nobody marked.
///
/// iTunes is told of tracks by their persistent ID alone, and deletes every one that has it. No two tracks of
/// one library should share theirs, but files that were put together by hand or by other programs have such.
/// Linear in the rows; the library is asked once for each ID, at the first question about it. One thread at a
/// time.
class SharedIds {
  public:
    /// The rows' texts outlive it.
    SharedIds(const std::vector<TrackRecord*>& rows, TracksOfId tracksOfId);

    /// Why the marked track must stay, a phrase that names the other; "" where it may go.
    std::string reasonToKeep(const TrackRecord& record);

  private:
    struct Rows {
        std::size_t marked = 0;
        const TrackRecord* unmarked = nullptr;
        std::optional<std::string> reason; ///< once it was asked for
    };

    std::string reasonOf(const TrackRecord& record, const Rows& same) const;

    TracksOfId m_tracksOfId;
    std::unordered_map<std::uint64_t, Rows> m_rows; ///< of the marked IDs
};

} // namespace songsweep
