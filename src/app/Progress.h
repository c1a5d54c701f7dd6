// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

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

/// A percentage as bars and texts show it: whole, so that 100 means done; within 0 and 100; 0 where it is
/// none.
inline int wholePercent(double percent) {
    return std::isnan(percent) ? 0 : static_cast<int>(std::clamp(percent, 0.0, 100.0));
}

} // namespace songsweep
