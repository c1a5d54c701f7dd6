// SPDX-License-Identifier: MIT
#include "library/ListGain.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

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

} // namespace
} // namespace songsweep
