// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ExpressionParser.h"

#include "scripting/TextCase.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::TextCase;

class ExpressionParserTest : public testing::TestWithParam<TextCase> {};

TEST_P(ExpressionParserTest, GivesTheResult) {
    EXPECT_EQ(test::outcomeOf(GetParam().source), GetParam().result) << GetParam().source;
}

std::vector<TextCase> literals() {
    return {
        {"", ""},
        {"\n\n  \n", ""},
        {"5", "5"},
        {"-5", "-5"},
        {"9223372036854775807", "9223372036854775807"},
        {"9223372036854775808", "9.223372036854776E+18"},
        {"1.5", "1.5"},
        {"1.5E+3", "1500.0"},
        {"1e-5", "1.0E-5"},
        {"10000.0", "1.0E+4"},
        {"\"a\\\"b\\\\c\\n\"", "\"a\\\"b\\\\c\n\""},
        {"\"two\nlines\"", "\"two\nlines\""},
        {"true", "true"},
        {"FALSE", "false"},
        {"missing value", "missing value"},
        {"{}", "{}"},
        {"{1, \"a\", {}, {2.0, true}}", "{1, \"a\", {}, {2.0, true}}"},
        {"[1, 2]", "{1, 2}"},
        {"date \"2026-11-21 13:45:30\"", "date \"Saturday, November 21, 2026 at 1:45:30 PM\""},
        {"date \"Saturday, November 21, 2026 at 1:45:30 PM\"",
         "date \"Saturday, November 21, 2026 at 1:45:30 PM\""},
        {"date \"11/21/2026\"", "date \"Saturday, November 21, 2026 at 12:00:00 AM\""},
        {"alias \"Macintosh HD:Music:a/b.mp3\"", "alias \"Macintosh HD:Music:a/b.mp3\""},
        {"POSIX file \"/Music/a:b.mp3\"", "alias \"Macintosh HD:Music:a/b.mp3\""},
        {"\"x\" & return & linefeed & tab & space & quote", "\"x\r\n\t \\\"\""},
        {"{MINUTES, Hours, days, weeks}", "{60, 3600, 86400, 604800}"},
        {"{January, February, March, April, May, June}", "{January, February, March, April, May, June}"},
        {"{july, AUGUST, September, October, November, December}",
         "{July, August, September, October, November, December}"},
        {"{Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday}",
         "{Sunday, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday}"},
    };
}

std::vector<TextCase> operators() {
    return {
        {"1 + 2 * 3", "7"},
        {"(1 + 2) * 3", "9"},
        {"7 div 2", "3"},
        {"-7 div 2", "-3"},
        {"7 mod 3", "1"},
        {"-7 mod 3", "-1"},
        {"6 / 2", "3.0"},
        {"2 ^ 10", "1024.0"},
        {"7 ÷ 2", "3.5"},
        {"2 - -3", "5"},
        {"\"3\" + 4", "7"},
        {"9223372036854775807 + 1", "9.223372036854776E+18"},
        {"\"a\" & 1 + 2 & \"b\"", "\"a3b\""},
        {"\"a\" & 1.5 & true & missing value", "\"a1.5truemissing value\""},
        {"\"a\" & {1, {2, \"b\"}}", "\"a12b\""},
        {"1 & \"a\"", "{1, \"a\"}"},
        {"{1} & 2 & {3}", "{1, 2, 3}"},
        {"1 = 1.0", "true"},
        {"1 = \"1\"", "false"},
        {"\"Größe\" = \"GRÖSSE\"", "true"},
        {"\"abc\" is \"ABC\"", "true"},
        {"\"abc\" is not \"abd\"", "true"},
        {"\"abc\" isn't \"ABC\"", "false"},
        {"1 ≠ 2", "true"},
        {"1 /= 1", "false"},
        {"1 < 2 and 2 ≤ 2 and 3 > 2 and 3 >= 3", "true"},
        {"1 is less than 2", "true"},
        {"2 is greater than or equal to 3", "false"},
        {"2 is not greater than 3", "true"},
        {"\"a\" comes before \"B\"", "true"},
        {"\"b\" does not come after \"a\"", "false"},
        {"5 is equal to 5", "true"},
        {"5 does not equal 5", "false"},
        {"1 < \"2\"", "true"},
        {"\"2\" < 10", "false"},
        {"{1, {2}} = {1.0, {2}}", "true"},
        {"{1} = {1, 2}", "false"},
        {"missing value is missing value", "true"},
        {"missing value is \"x\"", "false"},
        {"{1, 2, 3} contains 2", "true"},
        {"{1, 2, 3} contains {2, 3}", "true"},
        {"{1, 2, 3} contains {3, 2}", "false"},
        {"{} contains {}", "true"},
        {"\"Hello\" contains \"ELL\"", "true"},
        {"\"Hello\" does not contain \"x\"", "true"},
        {"\"Hello\" begins with \"he\"", "true"},
        {"\"Hello\" starts with \"lo\"", "false"},
        {"\"Hello\" ends with \"LO\"", "true"},
        {"{1, 2, 3} ends with {2, 3}", "true"},
        {"2 is in {1, 2}", "true"},
        {"2 is not in {1, 2}", "false"},
        {"\"b\" is contained by \"abc\"", "true"},
        {"not true", "false"},
        {"not 1 = 2", "true"},
        {"true or 1 / 0 = 0", "true"},
        {"false and 1 / 0 = 0", "false"},
        {"false or true and false", "false"},
        {"date \"2026-01-02\" - date \"2026-01-01\"", "86400"},
        {"date \"2026-01-01\" + 1 * days", "date \"Friday, January 2, 2026 at 12:00:00 AM\""},
        {"date \"2026-01-01\" < date \"2026-01-02\"", "true"},
    };
}

INSTANTIATE_TEST_SUITE_P(Literals, ExpressionParserTest, testing::ValuesIn(literals()));
INSTANTIATE_TEST_SUITE_P(Operators, ExpressionParserTest, testing::ValuesIn(operators()));

} // namespace
} // namespace songsweep
