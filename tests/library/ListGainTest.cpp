// SPDX-License-Identifier: MIT
#include "library/ListGain.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

ListGain gainOf(const std::vector<TrackRecord*>& rows) {
    GainPass pass(rows);
    while (!pass.step()) {
    }
    return pass.gain();
}

TEST(ListGainTest, CountsCopiesSongsAndWhatIsMarked) {
    TrackRecord first{.size = "1000"};
    TrackRecord second{.size = "4000000000"};
    TrackRecord third{.size = ""};
    TrackRecord fourth{.size = "-5"};
    first.gid = second.gid = 1;
    third.gid = fourth.gid = 2;
    EXPECT_EQ(gainOf({&first, &second, &third, &fourth}), (ListGain{4, 2, 0, 0}));
    first.checkbox = second.checkbox = third.checkbox = fourth.checkbox = true;
    EXPECT_EQ(gainOf({&first, &second, &third, &fourth}), (ListGain{4, 2, 4, 4'000'001'000}));
    EXPECT_EQ(gainOf({}), ListGain());
}

TEST(ListGainTest, CountsManyRowsInStepsWhereverOneEnds) {
    constexpr int groups = 3333; // of three, so that a step ends within one
    std::vector<TrackRecord> records(3 * groups);
    std::vector<TrackRecord*> rows;
    for (std::size_t row = 0; row < records.size(); ++row) {
        records[row].gid = static_cast<std::int32_t>(row / 3) + 1;
        rows.push_back(&records[row]);
    }
    GainPass pass(rows);
    EXPECT_FALSE(pass.step());
    while (!pass.step()) {
    }
    EXPECT_EQ(pass.gain(), (ListGain{3 * groups, groups, 0, 0}));
}

} // namespace
} // namespace songsweep
