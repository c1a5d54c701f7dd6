// SPDX-License-Identifier: MIT
#include "app/ProgressTexts.h"

#include "app/Progress.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

std::string text(const ProgressCounts& counts) { return progressText(counts).toStdString(); }

TEST(ProgressTexts, TellNumbersAndTheTimeLeft) {
    EXPECT_EQ(text({38, 60, {}}), "38 of 60");
    EXPECT_EQ(text({38, 60, 3}), "38 of 60 – about 10 seconds left");
    EXPECT_EQ(text({38, 60, 41}), "38 of 60 – about 50 seconds left");
    EXPECT_EQ(text({38, 60, 60}), "38 of 60 – about 1 minute left");
    EXPECT_EQ(text({38, 60, 61}), "38 of 60 – about 2 minutes left");
}

TEST(ProgressTexts, NeverTellMoreThanAll) {
    EXPECT_EQ(text({70, 60, {}}), "60 of 60");
    EXPECT_EQ(text({0, 0, 5}), "");
}

TEST(ProgressTexts, KnowNoTimeBeforeFiveSecondsNorWithoutAPace) {
    EXPECT_EQ(secondsLeft(50, 4999), std::nullopt);
    EXPECT_EQ(secondsLeft(50, 5000), 5);
    EXPECT_EQ(secondsLeft(25, 10'000), 30);
    EXPECT_EQ(secondsLeft(0, 10'000), std::nullopt);
    EXPECT_EQ(secondsLeft(100, 10'000), 0);
}

} // namespace
} // namespace songsweep
