// SPDX-License-Identifier: MIT
#include "restore/FinishProc.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "restore/CleanupFinish.h"

#include <exception>

namespace songsweep {

/// The end is told however it comes, since the window says until then that it is at it.
void FinishProc::main() {
    std::exception_ptr failure;
    Result<RecordedCleanup> finished = Error{Error::Code::failed, "Songsweep met a fault of its own"};
    try {
        finished = finish();
    } catch (...) {
        failure = std::current_exception();
    }
    auto answer = std::make_shared<FinishAnswer>();
    if (finished)
        answer->cleanup = std::move(finished).value();
    else
        answer->problem = finished.error().message;
    m_services.center.post({EventName::cleanupFinished, std::move(answer), this});
    if (failure) std::rethrow_exception(failure);
}

Result<RecordedCleanup> FinishProc::finish() {
    if (const Result<void> written = m_services.writeLibrary(); !written) return written.error();
    return CleanupFinish(m_library, m_record, m_files, m_services.trash)
        .carryOut({.program = m_services.program, .purpose = "the window", .isCancelled = [this] {
                       return isCancelled();
                   }});
}

} // namespace songsweep
