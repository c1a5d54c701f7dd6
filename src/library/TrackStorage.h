// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace songsweep {

/// Keeps the records of one search and their texts, at addresses that never change.
///
/// An arena: making is cheap, nothing is given back before the whole. Texts that repeat (artists, albums,
/// durations) are kept once by intern(). Used by one worker at a time.
class TrackStorage {
  public:
    TrackStorage();
    TrackStorage(const TrackStorage&) = delete;
    TrackStorage& operator=(const TrackStorage&) = delete;
    ~TrackStorage();

    TrackRecord& makeRecord();

    /// A copy of the text.
    Text store(std::string_view text);
    /// A copy of the text, the same one for equal texts.
    Text intern(std::string_view text);

    /// Forgets which texts were interned (they stay), giving the index back; for the end of a reading.
    void forgetInterned();

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// The track list: the records that a reader fills in and the grouping consumes, with their storage.
///
/// Every search has a list of its own, which its workers hold by shared pointer.
struct TrackList {
    std::shared_ptr<TrackStorage> storage = std::make_shared<TrackStorage>();
    std::vector<TrackRecord*> records;
};

} // namespace songsweep
