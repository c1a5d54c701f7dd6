// SPDX-License-Identifier: MIT
#include "restore/CleanupSearch.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

namespace songsweep {

void CleanupSearch::main() {
    auto listing = std::make_shared<CleanupListing>();
    Result<std::vector<CleanupSummary>> found = cleanupsOf(m_library);
    if (found) {
        listing->cleanups = std::move(found).value();
        std::erase_if(listing->cleanups, [](const CleanupSummary& each) { return !each.isCleanup(); });
    } else {
        listing->problem = found.error().message;
    }
    m_center.post({EventName::cleanupsListed, std::move(listing), this});
}

} // namespace songsweep
