// SPDX-License-Identifier: MIT
#pragma once

#include "operations/Operation.h"
#include "restore/CleanupRestore.h"

#include <functional>
#include <string>

namespace songsweep {

class Log;
class Trash;
struct WorkerEvent;
template <typename Event>
class NotificationCenter;

/// What came of a restore, or would come of it.
struct RestoreAnswer {
    RestoreReport report;
    std::string problem; ///< why nothing was begun, or why nothing can be told; the report is empty then
};

/// Which clean-up is taken back, and how.
struct RestoreOrder {
    std::string library;
    std::string record; ///< path
    LostFiles lostFiles = LostFiles::tracksComeBack;
};

/// What a restore works with; all of it outlives the worker.
struct RestoreServices {
    NotificationCenter<WorkerEvent>& center;
    Trash& trash;
    Log& log;
    std::string program;                        ///< name and version, for the record
    std::function<Result<void>()> writeLibrary; ///< writes what this program has not written yet
};

/// Looks what a restore would bring back; tells by "restoreForeseen", unless cancelled meanwhile.
class RestoreForesight final : public Operation {
  public:
    RestoreForesight(RestoreOrder order, const RestoreServices& services)
        : m_order(std::move(order))
        , m_services(services) {}

    void main() override;

  private:
    Result<RestoreReport> foresee() const;

    RestoreOrder m_order;
    RestoreServices m_services;
};

/// Takes a clean-up back on a worker thread; "restoreProgress" for each percent, and "restoreFinish" at the
/// end, cancelled or not. A cancel lets the step in hand be done, and what is left can be restored later.
class RestoreProc final : public Operation {
  public:
    RestoreProc(RestoreOrder order, const RestoreServices& services)
        : m_order(std::move(order))
        , m_services(services) {}

    void main() override;

  private:
    Result<RestoreReport> restore();
    void tellProgress(std::size_t done, std::size_t all);

    RestoreOrder m_order;
    RestoreServices m_services;
    int m_percent = 0;
};

} // namespace songsweep
