// SPDX-License-Identifier: MIT
#include "dupes/MarkRule.h"

#include "support/TestData.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace songsweep {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> itemsOf(MarkField field) {
    std::vector<std::string> items;
    for (const MarkRule& rule : markRules())
        if (rule.field == field) items.emplace_back(rule.item);
    return items;
}

TEST(MarkRuleTest, EveryTypeHasItsNumberAndItsNameForTheCommandLine) {
    const std::vector<std::string> names = {
        "highest-bitrate", "lowest-bitrate",  "longest",        "shortest",
        "largest",         "smallest",        "earliest-added", "latest-added",
        "with-artwork",    "without-artwork", "highest-rating", "lowest-rating",
        "most-played",     "least-played",    "kind",           "folder"};
    ASSERT_EQ(markRules().size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int number = i < 14 ? static_cast<int>(i) : names[i] == "kind" ? 100 : 200;
        ASSERT_NE(markRuleNamed(names[i]), nullptr) << names[i];
        EXPECT_EQ(static_cast<int>(markRuleNamed(names[i])->type), number) << names[i];
        EXPECT_EQ(markRules()[i].name, names[i]);
    }
    EXPECT_EQ(markRuleNamed("best"), nullptr);
    EXPECT_EQ(markRuleNamed(""), nullptr);
}

TEST(MarkRuleTest, ARuleIsFoundByItsType) {
    for (const MarkRule& rule : markRules())
        EXPECT_EQ(&markRule(rule.type), &rule) << rule.name;
}

TEST(MarkRuleTest, EveryOtherNumberIsNoRule) {
    for (const int number : {-1, -2, 14, 99, 101, 201})
        EXPECT_EQ(markRule(static_cast<MarkType>(number)).type, MarkType::none) << number;
}

TEST(MarkRuleTest, ItemsOfTheDialogStandInTheirOrder) {
    EXPECT_THAT(itemsOf(MarkField::bitrate), ElementsAre("Highest", "Lowest"));
    EXPECT_THAT(itemsOf(MarkField::time), ElementsAre("Longest", "Shortest"));
    EXPECT_THAT(itemsOf(MarkField::size), ElementsAre("Largest", "Smallest"));
    EXPECT_THAT(itemsOf(MarkField::rating), ElementsAre("Highest", "Lowest"));
    EXPECT_THAT(itemsOf(MarkField::playCount), ElementsAre("Most played", "Least played"));
    EXPECT_THAT(itemsOf(MarkField::dateAdded), ElementsAre("Earliest", "Latest"));
    EXPECT_THAT(itemsOf(MarkField::artwork), ElementsAre("With artwork", "Without artwork"));
}

TEST(MarkRuleTest, TheReadmeNamesEveryRule) {
    std::ifstream file(test::testData("../../README.md"));
    const std::string readme{std::istreambuf_iterator<char>(file), {}};
    for (const MarkRule& rule : markRules())
        EXPECT_THAT(readme, HasSubstr("`" + std::string(rule.name) + "`"));
}

} // namespace
} // namespace songsweep
