// SPDX-License-Identifier: MIT
#pragma once

#include "operations/Operation.h"

#include <functional>
#include <memory>

namespace songsweep {

class Log;
class OperationRunner;
class EventCenter;

/// Runs operations on worker threads, each only when the one before it has returned, in the order added.
///
/// An operation added while the event of a cancelled operation is being handled starts cancelled. What leaves
/// a main() is caught and logged. The queue owns its operations until they have returned. Main thread, unless
/// said otherwise.
class OperationQueue {
  public:
    OperationQueue(EventCenter& center, Log& log);
    OperationQueue(const OperationQueue&) = delete;
    OperationQueue& operator=(const OperationQueue&) = delete;
    ~OperationQueue(); ///< cancels all operations, closes the centre and waits until the last has returned

    void add(std::unique_ptr<Operation> operation);
    void cancelAllOperations();

    /// Operations waiting or running. Any thread.
    int operationCount() const;

    /// Called on the main thread, from its event loop, each time the last operation has returned.
    void setIdleHandler(std::function<void()> handler);

    /// Waits until every operation has returned; events are not handled meanwhile, so close the centre first.
    void waitUntilAllOperationsAreFinished();

  private:
    EventCenter& m_center;
    std::unique_ptr<OperationRunner> m_runner;
};

} // namespace songsweep
