// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace songsweep {

/// Where the progress bar stands. A value; the arithmetic of the bar and nothing else.
struct Progress {
    double prc = 0;                  ///< work units done in the present phase
    std::int32_t total = 0;          ///< work units of the whole task
    std::int32_t progressBase = 0;   ///< percentage at which the phase starts
    std::int32_t progressSpan = 100; ///< its width in percent

    /// Begins a phase with nothing done.
    void beginPhase(std::int32_t base, std::int32_t span) {
        prc = 0;
        progressBase = base;
        progressSpan = span;
    }

    /// The bar's value, a percentage; the phase's beginning while there is nothing to count.
    double percent() const { return total == 0 ? progressBase : progressBase + progressSpan * (prc / total); }
};

/// How many seconds are left of a task of which that much is done in that time, at the pace until now;
/// nothing in its first five seconds, in which no pace tells anything.
inline std::optional<int> secondsLeft(double percent, std::int64_t elapsedMilliseconds) {
    constexpr std::int64_t firstMilliseconds = 5000;
    if (elapsedMilliseconds < firstMilliseconds || !(percent > 0) || percent > 100) return std::nullopt;
    return static_cast<int>(static_cast<double>(elapsedMilliseconds) * (100 - percent) / percent / 1000);
}

/// A percentage as bars and texts show it: whole, so that 100 means done; within 0 and 100; 0 where it is
/// none.
inline int wholePercent(double percent) {
    return std::isnan(percent) ? 0 : static_cast<int>(std::clamp(percent, 0.0, 100.0));
}

} // namespace songsweep
