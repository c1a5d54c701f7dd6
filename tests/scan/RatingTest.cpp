// SPDX-License-Identifier: MIT
#include "scan/Rating.h"

#include <gtest/gtest.h>

namespace songsweep::test {

TEST(Rating, OfPopularityIsWholeStars) {
    EXPECT_EQ(ratingOfPopularity(0), 0);
    EXPECT_EQ(ratingOfPopularity(1), 20);
    EXPECT_EQ(ratingOfPopularity(64), 40);
    EXPECT_EQ(ratingOfPopularity(128), 60);
    EXPECT_EQ(ratingOfPopularity(196), 80);
    EXPECT_EQ(ratingOfPopularity(255), 100);
}

TEST(Rating, OfTextKnowsTheCommonScales) {
    EXPECT_EQ(ratingOfText("0.8"), 80);
    EXPECT_EQ(ratingOfText("1.0"), 100);
    EXPECT_EQ(ratingOfText("1"), 20);
    EXPECT_EQ(ratingOfText("4"), 80);
    EXPECT_EQ(ratingOfText("3.5"), 70);
    EXPECT_EQ(ratingOfText("8"), 80);
    EXPECT_EQ(ratingOfText("80"), 80);
    EXPECT_EQ(ratingOfText("100"), 100);
}

TEST(Rating, OfAPartIsNeverAStar) {
    EXPECT_EQ(ratingOfPart("1"), 100);
    EXPECT_EQ(ratingOfPart("1.0"), 100);
    EXPECT_EQ(ratingOfPart("0.35"), 35);
    EXPECT_EQ(ratingOfPart("0"), 0);
    EXPECT_EQ(ratingOfPart("4"), 0);
}

TEST(Rating, OfAnythingElseIsNone) {
    for (const char* const text : {"", "-1", "0", "four", "101", "1e99", "nan", "inf", "3 stars"})
        EXPECT_EQ(ratingOfText(text), 0) << text;
}

} // namespace songsweep::test
