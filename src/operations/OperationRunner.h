// SPDX-License-Identifier: MIT
#pragma once

#include "operations/Operation.h"

#include <QObject>
#include <QRunnable>
#include <QThreadPool>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace songsweep {

class EventCenter;
class Log;

/// The queue's task: runs the waiting operations one after another on the queue's own pool of one thread.
///
/// It is one long-lived runnable, started again whenever operations wait and none runs. All that the threads
/// share is behind one lock, so that nothing relies on how the pool hands a task over.
class OperationRunner final : public QRunnable {
  public:
    OperationRunner(EventCenter& center, Log& log);
    ~OperationRunner() override;

    void add(std::unique_ptr<Operation> operation);
    void cancelAll();
    int count() const;
    void setIdleHandler(std::function<void()> handler);
    void waitUntilIdle();
    void run() override;

  private:
    class IdleReceiver;

    Operation* takeNext();
    void runMain(Operation& operation);
    void letGo(bool isHandled);
    void tellIdle();

    EventCenter& m_center;
    Log& m_log;
    std::unique_ptr<IdleReceiver> m_idleReceiver;

    mutable std::mutex m_lock;
    std::condition_variable m_becameIdle;
    std::deque<std::unique_ptr<Operation>> m_waiting;
    std::unique_ptr<Operation> m_running;
    std::vector<std::unique_ptr<Operation>> m_kept; ///< those whose event may still be in hand after a close
    bool m_isActive = false;                        ///< started and not yet out of operations

    QThreadPool m_pool; ///< last: its end waits for the operation that runs, before anything above is gone
};

} // namespace songsweep
