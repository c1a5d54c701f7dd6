// SPDX-License-Identifier: MIT
#include "library/KeySort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::vector<std::uint32_t> orderOfTexts(const std::vector<std::string>& texts) {
    KeySort sort(texts.size());
    SortKey key;
    for (const std::string& text : texts)
        sort.add(key.clear().text(text).bytes());
    return sort.order();
}

TEST(KeySort, OrdersTextsWithoutRegardToCase) {
    EXPECT_THAT(orderOfTexts({"b", "A", "c", "B"}), ElementsAre(1, 0, 3, 2));
}

TEST(KeySort, PutsABeginningBeforeItsContinuation) {
    EXPECT_THAT(orderOfTexts({"abcdefghi", "abcdefgh", "abcdefg", ""}), ElementsAre(3, 2, 1, 0));
}

TEST(KeySort, ComparesBeyondTheFirstEightBytes) {
    EXPECT_THAT(orderOfTexts({"Track 0000000000000003", "Track 0000000000000001", "track 0000000000000002"}),
                ElementsAre(1, 2, 0));
}

TEST(KeySort, KeepsEqualKeysInTheOrderAdded) {
    EXPECT_THAT(orderOfTexts({"same text", "Same Text", "another", "SAME TEXT"}), ElementsAre(2, 0, 1, 3));
}

TEST(KeySort, OfNothingIsNothing) { EXPECT_THAT(KeySort(0).order(), IsEmpty()); }

TEST(KeySort, SurvivesLongEqualTexts) {
    const std::string longText(2'000'000, 'x');
    EXPECT_THAT(orderOfTexts({longText + "b", longText + "a", longText}), ElementsAre(2, 1, 0));
}

TEST(SortKey, OrdersNumbersAcrossZero) {
    KeySort sort(4);
    for (const std::int64_t number : {5L, -1L, 0L, std::numeric_limits<std::int64_t>::min()})
        sort.add(SortKey().number(number).bytes());
    EXPECT_THAT(sort.order(), ElementsAre(3, 1, 2, 0));
}

TEST(KeySort, TellsWhichItemsHaveOneKey) {
    KeySort sort(6);
    for (const char* text : {"a long text, twice", "b", "b", "a long text, once", "a long text, twice", "b"})
        sort.add(SortKey().text(text).bytes());
    EXPECT_THAT(sort.order(), ElementsAre(3, 0, 4, 1, 2, 5));
    std::vector<std::pair<std::size_t, std::size_t>> runs;
    for (const KeySort::Run& run : sort.equalRuns())
        runs.emplace_back(run.begin, run.end);
    EXPECT_THAT(runs, UnorderedElementsAre(std::pair(1, 3), std::pair(3, 6)));
}

TEST(SortKey, LetsTheFirstValueDecide) {
    KeySort sort(3);
    sort.add(SortKey().text("ab").text("c").bytes());
    sort.add(SortKey().text("a").text("d").bytes());
    sort.add(SortKey().text("a").text("bc").bytes());
    EXPECT_THAT(sort.order(), ElementsAre(2, 1, 0));
}

TEST(SortKey, TurnsTheOrderAroundButNotThatOfEqualKeys) {
    KeySort sort(4);
    for (const char* text : {"a", "b", "A", "ab"})
        sort.add(SortKey().text(text).reverse(0).bytes());
    EXPECT_THAT(sort.order(), ElementsAre(1, 3, 0, 2));
}

TEST(KeySort, AgreesWithAStableSort) {
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        std::vector<std::string> texts(200);
        for (std::string& text : texts)
            for (auto length = random() % 20; length > 0; --length)
                text += "aAb"[random() % 3];
        std::vector<std::uint32_t> expected(texts.size());
        for (std::uint32_t i = 0; i < expected.size(); ++i)
            expected[i] = i;
        const auto folded = [&](std::uint32_t i) {
            std::string copy = texts[i];
            std::replace(copy.begin(), copy.end(), 'A', 'a');
            return copy;
        };
        std::stable_sort(expected.begin(), expected.end(),
                         [&](std::uint32_t a, std::uint32_t b) { return folded(a) < folded(b); });
        EXPECT_EQ(orderOfTexts(texts), expected);
    }
}

TEST(KeySort, OrdersAlikeWithoutKeepingKeys) {
    std::mt19937 random(7);
    for (int turn = 0; turn < 200; ++turn) {
        std::vector<std::string> texts(random() % 60);
        for (std::string& text : texts) {
            text =
                std::string(random() % 3 == 0 ? "the same 8 and more " : "the ") + char('a' + random() % 4);
            text.append(random() % 12, 'x');
        }
        const KeyOrder order = orderOfKeys(
            texts.size(), [&](SortKey& key, std::uint32_t item) { key.text(texts[item]).number(3); });
        EXPECT_EQ(order.items, orderOfTexts(texts));
        for (std::size_t place = 0; place < texts.size(); ++place)
            EXPECT_EQ(order.repeats[place],
                      place > 0 && texts[order.items[place]] == texts[order.items[place - 1]]);
    }
}

TEST(KeySort, WithoutKeptKeysKnowsKeysOfLessThanEightBytes) {
    const std::vector<std::string> texts{"b", "", "a", "b", ""};
    const auto addKey = [&](SortKey& key, std::uint32_t item) { key.text(texts[item]); };
    EXPECT_THAT(orderOfKeys(texts.size(), addKey).items, ElementsAre(1, 4, 2, 0, 3));
    EXPECT_THAT(orderOfKeys(texts.size(), addKey).repeats, ElementsAre(false, true, false, false, true));
    EXPECT_THAT(orderOfKeys(0, addKey).items, IsEmpty());
}

} // namespace
} // namespace songsweep
