// SPDX-License-Identifier: MIT
#pragma once

#include "delete/SharedIds.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <unordered_set>

namespace songsweep {

struct SurveyedRows;

/// The persistent IDs of marked tracks that will stay since a track that is not marked has the same one; see
/// SharedIds, which decides when it comes to it. Eight bytes an ID; the library is asked once for each.
class KeptIds {
  public:
    /// Ends early, and is worth nothing, once it is stopped.
    KeptIds(const SurveyedRows& rows, const TracksOfId& tracksOfId, const std::function<bool()>& isStopped);

    bool contains(std::string_view pid) const;

  private:
    std::unordered_set<std::uint64_t> m_values;
};

} // namespace songsweep
