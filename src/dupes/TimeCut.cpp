// SPDX-License-Identifier: MIT
#include "dupes/TimeCut.h"

#include <algorithm>
#include <utility>

namespace songsweep {

namespace {

/// What the best cut from one of the different times on comes to.
struct Cut {
    std::int64_t pieces = 0;
    std::int64_t width = 0; ///< of its pieces, added up
    std::size_t end = 0;    ///< of its first piece

    auto cost() const { return std::pair(pieces, width); }
};

/// One of the different times, and where it begins among all.
struct Step {
    std::int64_t time;
    std::size_t begin;
};

std::vector<Step> stepsOf(std::span<const std::int32_t> times) {
    std::vector<Step> steps;
    for (std::size_t i = 0; i < times.size(); ++i)
        if (i == 0 || times[i] != times[i - 1]) steps.push_back({times[i], i});
    return steps;
}

/// The best cut from each time on, from the last to the first.
std::vector<Cut> bestCuts(const std::vector<Step>& steps, int tolerance) {
    std::vector<Cut> best(steps.size() + 1);
    for (std::size_t i = steps.size(); i-- > 0;) {
        for (std::size_t end = i + 1; end <= steps.size(); ++end) {
            const std::int64_t width = steps[end - 1].time - steps[i].time;
            if (width > tolerance) break;
            const Cut cut = {best[end].pieces + 1, best[end].width + width, end};
            if (best[i].pieces == 0 || cut.cost() <= best[i].cost()) best[i] = cut;
        }
    }
    return best;
}

} // namespace

std::vector<std::size_t> cutByTime(std::span<const std::int32_t> times, int tolerance) {
    if (times.empty()) return {};
    if (std::int64_t{times.back()} - times.front() <= tolerance) return {0};
    const std::vector<Step> steps = stepsOf(times);
    const std::vector<Cut> best = bestCuts(steps, tolerance);
    std::vector<std::size_t> begins;
    for (std::size_t step = 0; step < steps.size(); step = best[step].end)
        begins.push_back(steps[step].begin);
    return begins;
}

} // namespace songsweep
