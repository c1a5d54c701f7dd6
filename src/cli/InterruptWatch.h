// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SignalWatch.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace songsweep::cli {

/// What Ctrl-C, a closed terminal and a request to terminate do to a command.
///
/// The first tells the main thread. The second no longer waits for that: it does the last act, where there is
/// one, and ends the process. The third ends the process at once.
class InterruptWatch {
  public:
    /// The handler is called on the thread of the application object, from its event loop.
    explicit InterruptWatch(std::function<void()> handler);

    /// Whether there was a signal, told already or not. Any thread.
    bool heard() const { return m_heard || SignalWatch::hasSignal(); }

    /// What the first signal does at once, on a thread of its own, so that the main thread is not waited for.
    /// Done now where one was heard already.
    void setFirstAct(std::function<void()> act);

    /// What must still happen before a second signal ends the process, on a thread of its own; nothing takes
    /// it back. Never returns where such an end is under way.
    void setLastAct(std::function<void()> act);

  private:
    void hear(int count);
    void actFirst();
    [[noreturn]] void actAndEnd();

    std::function<void()> m_handler;
    std::atomic<bool> m_heard = false;
    std::mutex m_lock; // of both acts, held while one runs
    std::function<void()> m_firstAct;
    std::function<void()> m_lastAct;
    std::jthread m_end;
    SignalWatch m_watch; // last, as it calls from its thread
};

} // namespace songsweep::cli
