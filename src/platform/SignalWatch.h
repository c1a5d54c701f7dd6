// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

namespace songsweep {

/// Tells of Ctrl-C, of a terminal that closes and of a request to terminate, which then do not end the
/// process.
///
/// The signal handler writes one byte into a pipe, and a thread reads it, so that nothing else runs in a
/// signal handler, and a busy main thread hinders nobody. The signals are not blocked, since what the program
/// starts would inherit that and could not be ended. One that the process was started to ignore, as by nohup,
/// stays ignored. One watch at a time; made and destroyed on the main thread.
class SignalWatch {
  public:
    /// The handler is called on the watch's thread, with the number of signals so far, from 1.
    explicit SignalWatch(std::function<void(int count)> handler);
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;
    ~SignalWatch(); ///< the signals do again what they did before

    /// Whether a signal has come, be the handler called already or not. Any thread.
    static bool hasSignal();

  private:
    void replaceActions();
    void watch();

    std::function<void(int)> m_handler;
    std::vector<std::pair<int, struct sigaction>> m_formerActions;
    int m_readingEnd = -1;
    int m_writingEnd = -1;
    std::thread m_thread;
};

} // namespace songsweep
