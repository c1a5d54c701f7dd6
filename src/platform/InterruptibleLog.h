// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Log.h"

#include <atomic>
#include <mutex>

namespace songsweep {

/// Writes lines to a file descriptor that may be a pipe or a terminal, and so may make the writer wait.
///
/// A line waits for whoever reads, until the process is asked to end: then the reader gets a second for all
/// that is still to come, and what does not fit is lost. A terminal gets its lines made safe for it.
class InterruptibleLog final : public Log {
  public:
    enum class Descriptor { staysOpen, isClosed };

    /// `end` says what becomes of the descriptor in the end.
    InterruptibleLog(int descriptor, Descriptor end)
        : m_descriptor(descriptor)
        , m_end(end) {}
    ~InterruptibleLog() override;

    void line(std::string_view text) override;

    /// The process is about to end. Any thread, also while another one writes.
    void endSoon() { m_endsSoon = true; }

  private:
    bool waitUntilWritable();

    int m_descriptor;
    Descriptor m_end;
    std::mutex m_lock; // of a line, so that two threads do not tear it
    std::atomic<bool> m_endsSoon = false;
    int m_waitsInTheEnd = 0;
};

} // namespace songsweep
