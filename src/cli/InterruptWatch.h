// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>

namespace songsweep::cli {

/// Tells the main thread of Ctrl-C and of a request to terminate; a second one ends the process at once.
///
/// The signals are blocked in every thread and waited for in one of their own, so that no code runs in a
/// signal handler. Make it before any other thread is started.
class InterruptWatch {
  public:
    /// The handler is called on the thread of the application object, from its event loop.
    explicit InterruptWatch(std::function<void()> handler);
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
    ~InterruptWatch();

  private:
    void watch();

    std::function<void()> m_handler;
    std::thread m_thread;
};

} // namespace songsweep::cli
