// SPDX-License-Identifier: MIT
#pragma once

#include "library/SearchCoverage.h"
#include "library/TrackRecord.h"

#include <cstddef>
#include <memory>
#include <span>
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
    TrackStorage(TrackStorage&&) = delete;
    TrackStorage& operator=(const TrackStorage&) = delete;
    ~TrackStorage();

    /// Becomes what the other was, with all its records and texts at their addresses.
    TrackStorage& operator=(TrackStorage&& other) noexcept;

    TrackRecord& makeRecord();

    /// A copy of the text.
    Text store(std::string_view text);
    /// A copy of the text, the same one for equal texts. `likely` is looked at first: artist and album mostly
    /// are those of the record before. It has to be a literal or of this storage.
    Text intern(std::string_view text, Text likely = {});

    /// The bytes of a text that store() made, for a change in place that does not lengthen it.
    std::span<char> bytes(Text stored);

    /// Forgets which texts were interned (they stay), giving the index back; for the end of a reading.
    void forgetInterned();

  private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

/// The track list: the records that a reader fills in and the grouping consumes, with their storage, and what
/// both could not do.
///
/// Every search has a list of its own, which its workers hold by shared pointer.
struct TrackList {
    std::shared_ptr<TrackStorage> storage = std::make_shared<TrackStorage>();
    std::vector<TrackRecord*> records;
    SearchCoverage coverage;
};

} // namespace songsweep
