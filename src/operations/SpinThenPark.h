// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <thread>

namespace songsweep {

/// Spins for the other side of a hand-off, as long as spinning pays.
///
/// A wake-up across cores costs many times what a few yields cost, so a short wait is best spent yielding.
/// On a busy machine a single yield can give away a whole time slice: once one turned out slow, the next
/// waits do not spin at all, each time for longer. One object for each waiting side; not thread-safe.
class SpinThenPark {
  public:
    explicit SpinThenPark(std::chrono::microseconds limit)
        : m_limit(limit) {}

    /// Whether the next wait would spin at all. Counts as one wait where it would not.
    bool parksAtOnce() {
        if (m_rest == 0) return false;
        --m_rest;
        return true;
    }

    /// Yields until ready() is true, the limit is over or a yield was slow. Returns what ready() says last.
    template <typename Ready>
    bool spinUntil(Ready ready) {
        if (parksAtOnce()) return ready();
        auto before = Clock::now();
        const auto end = before + m_limit;
        while (!ready()) {
            std::this_thread::yield();
            const auto after = Clock::now();
            if (after - before > slowYield) {
                backOff();
                return ready();
            }
            if (after > end) return ready();
            before = after;
        }
        recover();
        return true;
    }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr auto slowYield = std::chrono::microseconds(50);
    static constexpr int shortestRest = 4096;
    static constexpr int longestRest = 1 << 17;
    static constexpr int recovery = 16384; ///< good waits in a row after which the next rest is half as long

    void backOff() {
        m_rest = m_nextRest;
        m_nextRest = std::min(2 * m_nextRest, longestRest);
        m_goodWaits = 0;
    }
    void recover() {
        if (++m_goodWaits < recovery) return;
        m_goodWaits = 0;
        m_nextRest = std::max(m_nextRest / 2, shortestRest);
    }

    std::chrono::microseconds m_limit;
    int m_rest = 0; ///< waits still to be made without spinning
    int m_nextRest = shortestRest;
    int m_goodWaits = 0;
};

} // namespace songsweep
