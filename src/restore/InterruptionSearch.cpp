// SPDX-License-Identifier: MIT
#include "restore/InterruptionSearch.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "restore/InterruptedCleanup.h"

namespace songsweep {

void InterruptionSearch::main() {
    auto found = findInterruptedCleanup(m_library, m_files, m_trash);
    if (!found || isCancelled()) return;
    m_center.post(
        {EventName::interruptionFound, std::make_shared<InterruptedCleanup>(std::move(*found)), this});
}

} // namespace songsweep
