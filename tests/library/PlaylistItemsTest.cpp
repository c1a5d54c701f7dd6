// SPDX-License-Identifier: MIT
#include "library/PlaylistItems.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PlaylistItems itemsOf(std::initializer_list<const char*> trackIds) {
    PlaylistItems items;
    for (const char* trackId : trackIds)
        items.add(trackId);
    items.sort();
    return items;
}

TEST(PlaylistItems, AreSortedAsNumbers) {
    EXPECT_THAT(itemsOf({"10", "9", "100"}).left(), ElementsAre("9", "10", "100"));
}

TEST(PlaylistItems, AnItemListedTwiceAdmitsTwoRecords) {
    PlaylistItems items = itemsOf({"7", "7", "8"});
    EXPECT_TRUE(items.take("7"));
    EXPECT_THAT(items.left(), ElementsAre("7", "8"));
    EXPECT_TRUE(items.take("7"));
    EXPECT_FALSE(items.take("7"));
    EXPECT_EQ(items.count(), 1U);
}

TEST(PlaylistItems, MatchAsTextsAndNotAsNumbers) {
    PlaylistItems items = itemsOf({"007", "7 b", "4294967296", "-1", "0"});
    EXPECT_FALSE(items.take("7"));
    EXPECT_FALSE(items.take("00"));
    EXPECT_TRUE(items.take("007"));
    EXPECT_FALSE(items.take("007"));
    EXPECT_TRUE(items.take("4294967296"));
    EXPECT_TRUE(items.take("-1"));
    EXPECT_TRUE(items.take("0"));
    EXPECT_THAT(items.left(), ElementsAre("7 b"));
}

TEST(PlaylistItems, TakeARecordWithoutAnId) {
    PlaylistItems items = itemsOf({"1"});
    EXPECT_FALSE(items.take(""));
    EXPECT_FALSE(PlaylistItems().take("1"));
}

TEST(PlaylistItems, AnswerInAnyOrder) {
    PlaylistItems items = itemsOf({"1", "2", "3", "4", "5"});
    for (const char* trackId : {"4", "2", "3", "5", "1"})
        EXPECT_TRUE(items.take(trackId)) << trackId;
    EXPECT_FALSE(items.take("3"));
    EXPECT_THAT(items.left(), IsEmpty());
}

TEST(PlaylistItems, ForgetEverything) {
    PlaylistItems items = itemsOf({"1", "x"});
    items.clear();
    EXPECT_EQ(items.count(), 0U);
    EXPECT_FALSE(items.take("1"));
}

TEST(PlaylistItems, AgreeWithACountedList) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        const bool descending = round % 2 == 0;
        PlaylistItems items;
        std::multimap<int, int> expected;
        for (int i = 0; i < 40; ++i) {
            const int number = static_cast<int>(random() % 30);
            items.add(std::to_string(number));
            expected.emplace(number, 0);
        }
        items.sort();
        std::vector<int> asked(40);
        for (int& number : asked)
            number = static_cast<int>(random() % 30);
        if (descending) std::sort(asked.rbegin(), asked.rend());
        for (const int number : asked) {
            const auto found = expected.find(number);
            ASSERT_EQ(items.take(std::to_string(number)), found != expected.end());
            if (found != expected.end()) expected.erase(found);
            ASSERT_EQ(items.count(), expected.size());
        }
        std::vector<std::string> left;
        for (const auto& [number, unused] : expected)
            left.push_back(std::to_string(number));
        EXPECT_EQ(items.left(), left);
    }
}

} // namespace
} // namespace songsweep
