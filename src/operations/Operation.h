// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstdint>

namespace songsweep {

/// One long task, run once on a worker thread by an OperationQueue.
///
/// A task never touches a widget; it reports by worker events. Cancelling only sets a flag, which the task
/// looks at; a task that was cancelled before it began still runs, so that its cancel event comes.
class Operation {
  public:
    Operation();
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;
    virtual ~Operation();

    /// The work. What it throws is caught and logged by the queue.
    virtual void main() = 0;

    /// Any thread.
    void cancel() noexcept { m_cancelled.store(true, std::memory_order_release); }
    bool isCancelled() const noexcept { return m_cancelled.load(std::memory_order_acquire); }

    /// Rises with each operation made in this process.
    std::uint64_t serial() const noexcept { return m_serial; }

  private:
    std::atomic<bool> m_cancelled = false;
    std::uint64_t m_serial;
};

} // namespace songsweep
