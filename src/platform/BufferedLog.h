// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Log.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

namespace songsweep {

/// Hands lines on in large pieces, and only so many of them.
///
/// A search over a million tracks whose files are missing writes a line for each, and a system call for each
/// line takes longer than the search. Until `begin` every line is handed on at once, as a console wants it;
/// from then on within a fifth of a second, or when 64 KB have come together. At the limit a last line says
/// that the log ends. What is held is lost where the process is killed. Any thread.
class BufferedLog final : public Log {
  public:
    /// Not more than `mostBytes` are handed on from `begin` on, but for the last line. The target outlives
    /// it.
    BufferedLog(Log& target, std::uint64_t mostBytes);
    ~BufferedLog() override; ///< hands on what is held

    void begin();
    void line(std::string_view text) override;

  private:
    void hold(std::string_view text);
    void handOn();
    void handOnInTime(const std::stop_token& stop);

    Log& m_target;
    const std::uint64_t m_mostBytes;
    std::mutex m_lock; // of everything below
    std::string m_held;
    std::uint64_t m_bytes = 0;
    bool m_hasBegun = false;
    bool m_hasEnded = false;
    std::condition_variable_any m_changed;
    std::jthread m_clock; // last, so that it ends first
};

} // namespace songsweep
