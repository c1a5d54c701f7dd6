// SPDX-License-Identifier: MIT
#include "restore/RestoreProc.h"

#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "restore/RestoreLog.h"

#include <exception>

namespace songsweep {

namespace {

std::shared_ptr<RestoreAnswer> answerOf(Result<RestoreReport> report) {
    auto answer = std::make_shared<RestoreAnswer>();
    if (report)
        answer->report = std::move(report).value();
    else
        answer->problem = report.error().message;
    return answer;
}

Result<CleanupRestore> restoreFor(const RestoreOrder& order, Trash& trash) {
    Result<RecordedCleanup> record = RecordedCleanup::read(order.record);
    if (!record) return record.error();
    return CleanupRestore(order.library, std::move(record).value(), trash, order.lostFiles);
}

} // namespace

Result<RestoreReport> RestoreForesight::foresee() const {
    const Result<CleanupRestore> restore = restoreFor(m_order, m_services.trash);
    if (!restore) return restore.error();
    Result<RestoreReport> report = restore.value().foresee();
    if (report)
        if (const Result<void> possible = restore.value().foreseeWriting(report.value()); !possible)
            return possible.error();
    return report;
}

void RestoreForesight::main() {
    auto answer = answerOf(foresee());
    if (isCancelled()) return;
    m_services.center.post({EventName::restoreForeseen, std::move(answer), this});
}

/// The end is told however it comes, since the sheet stays open until then.
void RestoreProc::main() {
    std::exception_ptr failure;
    Result<RestoreReport> restored = Error{Error::Code::failed, "Songsweep met a fault of its own"};
    try {
        restored = restore();
    } catch (...) {
        failure = std::current_exception();
    }
    const auto answer = answerOf(std::move(restored));
    m_services.center.post({EventName::restoreFinish, answer, this});
    logRestore(answer->report, m_services.log);
    if (failure) std::rethrow_exception(failure);
}

Result<RestoreReport> RestoreProc::restore() {
    if (const Result<void> written = m_services.writeLibrary(); !written) return written.error();
    const Result<CleanupRestore> restore = restoreFor(m_order, m_services.trash);
    if (!restore) return restore.error();
    return restore.value().carryOut(
        {.program = m_services.program,
         .purpose = "the window",
         .isCancelled = [this] { return isCancelled(); },
         .progress = [this](std::size_t done, std::size_t all) { tellProgress(done, all); }});
}

void RestoreProc::tellProgress(std::size_t done, std::size_t all) {
    constexpr std::size_t hundred = 100;
    const auto percent = static_cast<int>(all == 0 ? 0 : done * hundred / all);
    if (percent == m_percent) return;
    m_percent = percent;
    m_services.center.post({EventName::restoreProgress, ProgressUnits{percent}, this});
}

} // namespace songsweep
