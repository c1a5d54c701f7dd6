// SPDX-License-Identifier: MIT
#include "dupes/TimeCut.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <tuple>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Times = std::vector<std::int32_t>;
using Begins = std::vector<std::size_t>;

TEST(TimeCut, TimesWithinTheToleranceStayTogether) {
    EXPECT_THAT(cutByTime(Times{180, 181, 182}, 2), ElementsAre(0));
    EXPECT_THAT(cutByTime(Times{180, 183}, 2), ElementsAre(0, 1));
    EXPECT_THAT(cutByTime(Times{}, 2), IsEmpty());
}

TEST(TimeCut, ThereAreNoChains) {
    EXPECT_THAT(cutByTime(Times{100, 102, 104}, 2), ElementsAre(0, 2));
    EXPECT_THAT(cutByTime(Times{100, 101, 102, 103, 104}, 2), ElementsAre(0, 3));
}

TEST(TimeCut, TheNarrowerPiecesWin) { EXPECT_THAT(cutByTime(Times{100, 102, 103}, 2), ElementsAre(0, 1)); }

TEST(TimeCut, EqualTimesAreNeverParted) {
    EXPECT_THAT(cutByTime(Times{100, 100, 101, 101}, 0), ElementsAre(0, 2));
    EXPECT_THAT(cutByTime(Times{100, 102, 102, 104}, 2), ElementsAre(0, 3));
}

TEST(TimeCut, TimesOfAnySizeAreCompared) {
    EXPECT_THAT(
        cutByTime(
            Times{std::numeric_limits<std::int32_t>::min(), 0, std::numeric_limits<std::int32_t>::max()}, 10),
        ElementsAre(0, 1, 2));
}

/// The model: every cut of the different times, each looked at.
Begins bestOfAllCuts(const Times& times, int tolerance) {
    using Cost = std::tuple<std::size_t, std::int32_t, std::vector<std::int64_t>>;
    std::optional<std::pair<Cost, Begins>> best;
    const auto gaps = static_cast<unsigned>(times.size() - 1);
    for (unsigned cuts = 0; cuts < 1U << gaps; ++cuts) {
        Begins begins = {0};
        bool allowed = true;
        for (unsigned gap = 0; gap < gaps; ++gap) {
            if ((cuts >> gap & 1U) == 0) continue;
            allowed = allowed && times[gap] != times[gap + 1];
            begins.push_back(gap + 1);
        }
        std::int32_t width = 0;
        std::vector<std::int64_t> lengths;
        for (std::size_t piece = 0; piece < begins.size(); ++piece) {
            const std::size_t end = piece + 1 < begins.size() ? begins[piece + 1] : times.size();
            allowed = allowed && times[end - 1] - times[begins[piece]] <= tolerance;
            width += times[end - 1] - times[begins[piece]];
            lengths.push_back(-static_cast<std::int64_t>(end));
        }
        if (!allowed) continue;
        Cost cost = {begins.size(), width, lengths};
        if (!best || cost < best->first) best = {cost, begins};
    }
    return best->second;
}

TEST(TimeCut, IsTheBestOfAllCuts) {
    std::mt19937 random(3);
    for (int i = 0; i < 5000; ++i) {
        Times times(1 + random() % 9);
        for (std::int32_t& time : times)
            time = static_cast<std::int32_t>(random() % 16);
        std::sort(times.begin(), times.end());
        const int tolerance = static_cast<int>(random() % 5);
        ASSERT_EQ(cutByTime(times, tolerance), bestOfAllCuts(times, tolerance))
            << testing::PrintToString(times) << " within " << tolerance;
    }
}

} // namespace
} // namespace songsweep
