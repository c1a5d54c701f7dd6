// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

namespace songsweep {

/// Says when deletions that gather are to be written: a while after the last one, but not later than some
/// time after the first.
///
/// Knows times only, no clock and no thread, so that it can be tried without waiting. A value.
class WriteSchedule {
  public:
    using Clock = std::chrono::steady_clock;

    struct Times {
        Clock::duration quiet = std::chrono::seconds(2);
        Clock::duration longest = std::chrono::seconds(30);
    };

    WriteSchedule() = default;
    explicit WriteSchedule(Times times)
        : m_times(times) {}

    /// Something was deleted.
    void changed(Clock::time_point now);
    /// Nothing is left to write.
    void written();

    /// When to write next; nothing while there is nothing to write.
    std::optional<Clock::time_point> due() const;

  private:
    Times m_times;
    std::optional<Clock::time_point> m_first; // of the deletions that are not written
    Clock::time_point m_last{};
};

} // namespace songsweep
