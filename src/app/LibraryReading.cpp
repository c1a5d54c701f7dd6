// SPDX-License-Identifier: MIT
#include "app/LibraryReading.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

namespace songsweep {

void LibraryReading::main() {
    auto answer = std::make_shared<LibraryAnswer>();
    if (m_sources.contents) answer->contents = m_sources.contents();
    answer->others = m_sources.others();
    if (!isCancelled()) m_center.post({EventName::libraryRead, std::move(answer), this});
}

} // namespace songsweep
