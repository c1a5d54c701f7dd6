// SPDX-License-Identifier: MIT
#pragma once

#include "library/TrackRecord.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace songsweep {

/// What a list of duplicates holds, and what deleting its marked copies would gain. A value.
struct ListGain {
    int copies = 0;
    int songs = 0; ///< groups
    int marked = 0;
    std::uint64_t markedBytes = 0; ///< as the library gives the sizes

    bool operator==(const ListGain&) const = default;
};

/// Counts a list's gain, some thousand rows a step, so that whoever counts a million of them answers in
/// between.
///
/// One pass over the rows, which outlive it and do not change meanwhile.
class GainPass {
  public:
    explicit GainPass(const std::vector<TrackRecord*>& rows)
        : m_rows(rows) {}

    /// Goes on; true once all rows were counted.
    bool step();
    const ListGain& gain() const { return m_gain; }

  private:
    void count(const TrackRecord& record);

    const std::vector<TrackRecord*>& m_rows;
    std::size_t m_next = 0;
    ListGain m_gain;
};

} // namespace songsweep
