// SPDX-License-Identifier: MIT
#pragma once

#include "library/LibraryWalk.h"
#include "library/PlaylistItems.h"
#include "library/ReadTracks.h"
#include "libraryfile/PlainNodes.h"
#include "platform/Log.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace songsweep {

/// Tracks that were read, and where in the file they end.
struct TracksOfPass {
    std::unique_ptr<ReadTracks> tracks;
    std::uint64_t end = 0;     ///< behind the tag that ended them
    std::vector<Element> open; ///< the elements open there
};

/// Reads the tracks of a plain library file beside a pass that goes over its tags anyway.
///
/// A search then walks what stands behind the tracks alone. Keeps the records, as many bytes as a search.
class TrackPass {
  public:
    TrackPass();
    TrackPass(const TrackPass&) = delete;
    TrackPass& operator=(const TrackPass&) = delete;
    ~TrackPass() = default;

    /// The nodes of the next tag, and where in the file it ends.
    void take(const PlainNodes& nodes, std::uint64_t end);
    /// The next property.
    void take(const XmlProperty& property);

    /// The tracks, once the pass is over and the file was plain; nothing where their end did not come, or the
    /// walk would have ended with an exception: the search is to meet that itself.
    std::optional<TracksOfPass> found();

  private:
    enum class State { reading, failed, found };

    TracksOfPass m_found;
    PlaylistItems m_noItems;
    SilentLog m_noLog;
    LibraryWalk m_walk;
    State m_state = State::reading;
};

} // namespace songsweep
