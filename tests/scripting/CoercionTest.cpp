// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Coercion.h"

#include "scripting/TextCase.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::TextCase;

class CoercionTest : public testing::TestWithParam<TextCase> {};

TEST_P(CoercionTest, GivesTheResult) {
    EXPECT_EQ(test::outcomeOf(GetParam().source), GetParam().result) << GetParam().source;
}

std::vector<TextCase> coercions() {
    return {
        {"5 as text", "\"5\""},
        {"5 as string", "\"5\""},
        {"5 as Unicode text", "\"5\""},
        {"1.0 as text", "\"1.0\""},
        {"{1, \"a\"} as text", "\"1a\""},
        {"missing value as text", "\"missing value\""},
        {"true as text", "\"true\""},
        {"\"12\" as integer", "12"},
        {"\" 12 \" as integer", "12"},
        {"2.6 as integer", "3"},
        {"{7} as integer", "7"},
        {"true as integer", "1"},
        {"\"1.5\" as real", "1.5"},
        {"3 as real", "3.0"},
        {"\"3\" as number", "3"},
        {"\"true\" as boolean", "true"},
        {"0 as boolean", "false"},
        {"5 as list", "{5}"},
        {"{5} as list", "{5}"},
        {"\"Macintosh HD:a\" as alias", "alias \"Macintosh HD:a\""},
        {"(alias \"Macintosh HD:a\") as text", "\"Macintosh HD:a\""},
        {"\"a\" & 5 as text", "\"a5\""},
        {"1 + 1 as text", "\"2\""},
        {"(month of date \"2026-11-21\") as integer", "11"},
        {"(weekday of date \"2026-11-22\") as number", "1"},
        {"November as text", "\"November\""},
        {"\"in \" & may", "\"in May\""},
        {"month of date \"2026-11-21\" is november", "true"},
        {"month of date \"2026-11-21\" is January", "false"},
        {"November = 11", "false"},
        {"November = \"November\"", "false"},
        {"item November of {1}", "error: line 1, column 6: cannot make a constant into an integer"},
    };
}

INSTANTIATE_TEST_SUITE_P(Coercions, CoercionTest, testing::ValuesIn(coercions()));

} // namespace
} // namespace songsweep
