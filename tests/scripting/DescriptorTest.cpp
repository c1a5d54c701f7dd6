// SPDX-License-Identifier: MIT
#include "scripting/Descriptor.h"

#include "scripting/SourceNotation.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

namespace songsweep {
namespace {

Descriptor of(Descriptor::Value value) { return Descriptor(std::move(value)); }

struct Case {
    Descriptor descriptor;
    std::optional<std::string> text;
    std::int32_t integer;
    const char* notation;
};

class DescriptorTest : public testing::TestWithParam<Case> {};

TEST_P(DescriptorTest, ReadsAsTextIntegerAndNotation) {
    EXPECT_EQ(GetParam().descriptor.stringValue(), GetParam().text);
    EXPECT_EQ(GetParam().descriptor.int32Value(), GetParam().integer);
    EXPECT_EQ(sourceNotation(GetParam().descriptor), GetParam().notation);
}

const Case cases[] = {
    {Descriptor(), "msng", 0, "missing value"},
    {of(true), "true", 1, "true"},
    {of(false), "false", 0, "false"},
    {Descriptor::integer(-17), "-17", -17, "-17"},
    {Descriptor::integer(5'000'000'000), "5000000000", std::numeric_limits<std::int32_t>::max(),
     "5000000000"},
    {Descriptor::integer(-5'000'000'000), "-5000000000", std::numeric_limits<std::int32_t>::min(),
     "-5000000000"},
    {of(2.5), "2.5", 2, "2.5"},
    {of(1e300), "1.0E+300", std::numeric_limits<std::int32_t>::max(), "1.0E+300"},
    {Descriptor::text(""), "", 0, "\"\""},
    {Descriptor::text("12 tracks"), "12 tracks", 12, "\"12 tracks\""},
    {Descriptor::text(" -3"), " -3", -3, "\" -3\""},
    {Descriptor::text("a\"b\\c"), "a\"b\\c", 0, "\"a\\\"b\\\\c\""},
    {Descriptor::text("99999999999999999999"), "99999999999999999999",
     std::numeric_limits<std::int32_t>::max(), "\"99999999999999999999\""},
    {of(Descriptor::Date{0}), "Friday, January 1, 1904 at 12:00:00 AM", 0,
     "date \"Friday, January 1, 1904 at 12:00:00 AM\""},
    {of(Descriptor::Alias{"/Music/a:b.mp3"}), "Macintosh HD:Music:a/b.mp3", 0,
     "alias \"Macintosh HD:Music:a/b.mp3\""},
    {of(Descriptor::Object{"track 1"}), std::nullopt, 0, "track 1"},
    {Descriptor::list({}), std::nullopt, 0, "{}"},
    {Descriptor::list({Descriptor::text("7")}), "7", 7, "{\"7\"}"},
    {Descriptor::list({Descriptor::list({Descriptor()})}), "msng", 0, "{{missing value}}"},
    {Descriptor::list({Descriptor::list({})}), std::nullopt, 0, "{{}}"},
    {Descriptor::list({Descriptor::integer(1), Descriptor::integer(2)}), std::nullopt, 0, "{1, 2}"},
};

INSTANTIATE_TEST_SUITE_P(Values, DescriptorTest, testing::ValuesIn(cases));

TEST(DescriptorItemsTest, AreCountedFromOne) {
    const Descriptor list = Descriptor::list({Descriptor::integer(5), Descriptor::text("a")});
    EXPECT_EQ(list.numberOfItems(), 2);
    EXPECT_EQ(list.descriptorAtIndex(0), nullptr);
    ASSERT_NE(list.descriptorAtIndex(1), nullptr);
    EXPECT_EQ(*list.descriptorAtIndex(1), Descriptor::integer(5));
    EXPECT_EQ(*list.descriptorAtIndex(2), Descriptor::text("a"));
    EXPECT_EQ(list.descriptorAtIndex(3), nullptr);
    EXPECT_EQ(Descriptor::text("a").numberOfItems(), 0);
    EXPECT_EQ(Descriptor::text("a").descriptorAtIndex(1), nullptr);
}

TEST(DescriptorDataTest, IsTheLongDateTimeOfADateInTheHostsOrder) {
    const std::int64_t seconds = 3'850'000'000;
    const std::vector<std::byte> data = of(Descriptor::Date{seconds}).data();
    ASSERT_EQ(data.size(), sizeof seconds);
    std::int64_t read = 0;
    std::memcpy(&read, data.data(), sizeof read);
    EXPECT_EQ(read, seconds);
}

TEST(DescriptorDataTest, IsTheUtf8OfAText) {
    const std::vector<std::byte> data = Descriptor::text("ä").data();
    ASSERT_EQ(data.size(), 2U);
    EXPECT_EQ(data[0], std::byte{0xC3});
    EXPECT_TRUE(Descriptor::text("").data().empty());
    EXPECT_TRUE(Descriptor().data().empty());
}

} // namespace
} // namespace songsweep
