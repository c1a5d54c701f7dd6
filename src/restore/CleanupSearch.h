// SPDX-License-Identifier: MIT
#pragma once

#include "libraryfile/CleanupHistory.h"
#include "operations/Operation.h"

#include <string>
#include <vector>

namespace songsweep {

struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// The clean-ups of a library that a user may choose from, the newest first.
struct CleanupListing {
    std::vector<CleanupSummary> cleanups;
    std::string problem; ///< why there are none; "" where there are just none
};

/// Lists the clean-ups of a library on a worker thread, since its folder may lie on a slow disk; tells by
/// "cleanupsListed".
class CleanupSearch final : public Operation {
  public:
    CleanupSearch(std::string library, NotificationCenter<WorkerEvent>& center)
        : m_library(std::move(library))
        , m_center(center) {}

    void main() override;

  private:
    std::string m_library;
    NotificationCenter<WorkerEvent>& m_center;
};

} // namespace songsweep
