// SPDX-License-Identifier: MIT
#include "scripting/InterpretedAppleScript.h"
#include "scripting/SourceNotation.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

/// A text that tells no application, and what it gives in source notation; nothing for no result.
struct Case {
    const char* source;
    const char* result;
};

std::string outcomeOf(const std::string& source) {
    InterpretedAppleScript script({});
    const Result<std::optional<Descriptor>> result = script.run(source);
    if (!result) return "error: " + result.error().message;
    return result.value() ? sourceNotation(*result.value()) : "";
}

class LanguageTest : public testing::TestWithParam<Case> {};

TEST_P(LanguageTest, givesTheResult) {
    EXPECT_EQ(outcomeOf(GetParam().source), GetParam().result) << GetParam().source;
}

std::vector<Case> literals() {
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
        {"2 * hours + 30 * minutes", "9000"},
    };
}

std::vector<Case> operators() {
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

std::vector<Case> coercions() {
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
    };
}

std::vector<Case> references() {
    return {
        {"set x to {1, 2, 3}\nitem 2 of x", "2"},
        {"item -1 of {1, 2, 3}", "3"},
        {"items 2 thru 3 of {1, 2, 3}", "{2, 3}"},
        {"items 2 through -1 of {1, 2, 3}", "{2, 3}"},
        {"items from 1 to 2 of {1, 2, 3}", "{1, 2}"},
        {"every item of {1, 2}", "{1, 2}"},
        {"first item of {1, 2}", "1"},
        {"the last item of {1, 2}", "2"},
        {"middle item of {1, 2, 3}", "2"},
        {"item 2 of \"häß\"", "\"ä\""},
        {"characters 1 thru 2 of \"abc\"", "{\"a\", \"b\"}"},
        {"{1, 2}'s length", "2"},
        {"item 1 of item 2 of {1, {2, 3}}", "2"},
        {"item 1 in {4}", "4"},
        {"count of {1, 2}", "2"},
        {"count {1, 2}", "2"},
        {"count \"häß\"", "3"},
        {"number of {1, 2}", "2"},
        {"length of \"abc\"", "3"},
        {"(count of {1, 2}) + 1", "3"},
        {"count of {1, 2} + 1", "3"},
        {"rest of {1, 2, 3}", "{2, 3}"},
        {"reverse of {1, 2, 3}", "{3, 2, 1}"},
        {"POSIX path of alias \"Macintosh HD:a:b\"", "\"/a/b\""},
        {"POSIX path of \"Macintosh HD:a:b\"", "\"/a/b\""},
        {"POSIX path of {alias \"Macintosh HD:a\"}", "\"/a\""},
        {"year of date \"2026-11-21\"", "2026"},
        {"set d to date \"2026-11-21 13:45:30\"\n{day of d, hours of d, minutes of d, seconds of d, time of "
         "d}",
         "{21, 13, 45, 30, 49530}"},
        {"exists item 3 of {1, 2}", "false"},
        {"item 1 of {1, 2} exists", "true"},
    };
}

std::vector<Case> statements() {
    return {
        {"set x to 5", "5"},
        {"set x to 5\nset y to x + 1\ny", "6"},
        {"set X to 5\nx", "5"},
        {"set |my name| to 5\n|My Name|", "5"},
        {"set {a, b} to {1, 2}\n{b, a}", "{2, 1}"},
        {"set x to {}\nset end of x to 1\nset beginning of x to 0\nset the end of x to {2}\nx",
         "{0, 1, {2}}"},
        {"set x to {1, 2}\nset item 2 of x to 5\nset last item of x to 6\nx", "{1, 6}"},
        {"set a to {1}\nset b to a\nset end of b to 2\na", "{1, 2}"},
        {"set a to {1, {2}}\ncopy a to b\nset end of item 2 of b to 3\na", "{1, {2}}"},
        {"get 5", "5"},
        {"return 5\n6", "5"},
        {"5\nreturn", ""},
        {"if true then 1", "1"},
        {"if false then 1", ""},
        {"if false then 1 else 2", "2"},
        {"if 1 = 2 then\n1\nelse if 2 = 2 then\n2\nelse\n3\nend if", "2"},
        {"if false then\n1\nelse\n3\nend", "3"},
        {"if true\n1\nend if", "1"},
        {"set n to 0\nrepeat 3 times\nset n to n + 1\nend repeat\nn", "3"},
        {"set l to {}\nrepeat with i from 1 to 3\nset end of l to i\nend repeat\nl", "{1, 2, 3}"},
        {"set l to {}\nrepeat with i from 3 to 1 by -1\nset end of l to i\nend\nl", "{3, 2, 1}"},
        {"set l to {}\nrepeat with i from 1 to 5 by 2\nset end of l to i\nend repeat\nl", "{1, 3, 5}"},
        {"repeat with i from 2 to 1\ni\nend repeat", ""},
        {"set l to {}\nrepeat with x in {1, \"a\"}\nset end of l to x\nend repeat\nl", "{1, \"a\"}"},
        {"set n to 0\nrepeat while n < 3\nset n to n + 1\nend repeat\nn", "3"},
        {"set n to 0\nrepeat until n = 3\nset n to n + 1\nend repeat\nn", "3"},
        {"set n to 0\nrepeat\nset n to n + 1\nif n = 4 then exit repeat\nend repeat\nn", "4"},
        {"repeat with i from 1 to 3\nrepeat\nexit repeat\nend repeat\nend repeat\ni", "3"},
        {"repeat with i from 1 to 3\nreturn i\nend repeat", "1"},
        {"try\nx\non error\n7\nend try", "7"},
        {"try\nerror \"boo\" number 42\non error m number n\n{m, n}\nend try", "{\"boo\", 42}"},
        {"try\n1 / 0\non error number n\nn\nend try", "-2701"},
        {"try\nundefined\non error m number n\nn\nend try", "-2753"},
        {"try\n\"a\" + 1\non error m number n\nn\nend try", "-1700"},
        {"try\nitem 3 of {}\non error m number n\nn\nend try", "-1728"},
        {"set x to 1\ntry\nset x to 2\nerror\nset x to 3\nend try\nx", "2"},
        {"try\n5\nend try", "5"},
        {"try\nreturn 5\nend try\n6", "5"},
        {"1 + 1\nresult + 1", "3"},
        {"-- a comment\n5 # another\n(* a (* nested *)\ncomment *)", "5"},
        {"set x to 1 + ¬\n  2\nx", "3"},
        {"set x to ¬  \r\n 2\r\nx\r", "2"},
        {"  set   x\tto\t{ 1,2 ,  3 }\n\n\n  x  ", "{1, 2, 3}"},
        {"SET x TO 5\nIF x IS 5 THEN\nx\nEND IF", "5"},
    };
}

INSTANTIATE_TEST_SUITE_P(Literals, LanguageTest, testing::ValuesIn(literals()));
INSTANTIATE_TEST_SUITE_P(Operators, LanguageTest, testing::ValuesIn(operators()));
INSTANTIATE_TEST_SUITE_P(Coercions, LanguageTest, testing::ValuesIn(coercions()));
INSTANTIATE_TEST_SUITE_P(References, LanguageTest, testing::ValuesIn(references()));
INSTANTIATE_TEST_SUITE_P(Statements, LanguageTest, testing::ValuesIn(statements()));

/// A text that fails, and how.
class FailureTest : public testing::TestWithParam<Case> {};

TEST_P(FailureTest, saysWhereAndWhy) {
    EXPECT_EQ(outcomeOf(GetParam().source), std::string("error: ") + GetParam().result) << GetParam().source;
}

std::vector<Case> failures() {
    return {
        {"1 +", "line 1, column 4: expected a value, but found the end of the text"},
        {"set x 5", "line 1, column 7: expected “to”, but found “5”"},
        {"foo bar", "line 1, column 5: expected the end of the line, but found “bar”"},
        {"5\n  foo bar", "line 2, column 7: expected the end of the line, but found “bar”"},
        {"\"ä\" }", "line 1, column 5: expected the end of the line, but found “}”"},
        {"(1", "line 1, column 3: expected “)”, but found the end of the text"},
        {"{1, 2", "line 1, column 6: expected “,” or “}”, but found the end of the text"},
        {"\"abc", "line 1, column 1: the text has no end"},
        {"\"a\\qb\"", "line 1, column 3: unknown escape in a text"},
        {"(* abc", "line 1, column 1: the comment has no end"},
        {"|abc", "line 1, column 1: the |word| has no end"},
        {"5 $ 6", "line 1, column 3: unknown character “$”"},
        {"5 «x»", "line 1, column 3: unknown character “«”"},
        {"12ab", "line 1, column 3: a number runs into a word"},
        {"end tell", "line 1, column 1: “end” stands outside of any block"},
        {"else", "line 1, column 1: “else” stands outside of any block"},
        {"exit repeat", "line 1, column 1: “exit repeat” stands outside of a repeat"},
        {"if true then\n5", "line 2, column 2: expected “end if”, but found the end of the text"},
        {"repeat 5\nend", "line 1, column 9: expected “times”, but found the end of the line"},
        {"set 5 to 6", "line 1, column 5: this cannot be set"},
        {"tell application \"Mail\" to quit", "line 1, column 18: there is no application “Mail”"},
        {"tell application x to quit",
         "line 1, column 18: expected the name of an application as a text, but found “x”"},
        {"tell 5 to stop", "line 1, column 1: a number cannot be told"},
        {"date \"yesterday\"", "line 1, column 1: “yesterday” is not a date that can be read"},
        {"date \"2026-02-30\"", "line 1, column 1: “2026-02-30” is not a date that can be read"},
        {"considering case\nend considering", "line 1, column 1: “considering” is not supported"},
        {"on run\nend run", "line 1, column 1: “on” stands outside of any block"},
        {"with timeout of 5 seconds\nend timeout",
         "line 1, column 1: “with” is not supported as a statement"},
        {"5 as widget", "line 1, column 6: expected text, integer, real, number, boolean, list or alias, but "
                        "found “widget”"},
        {"x", "line 1, column 1: the variable “x” is not defined"},
        {"5\n\n  1 / 0", "line 3, column 5: a number cannot be divided by zero"},
        {"\"a\" + 1", "line 1, column 5: cannot reckon with a text and a number"},
        {"not 5", "line 1, column 5: cannot make a number into a truth value"},
        {"if missing value then 5", "line 1, column 4: cannot make the missing value into a truth value"},
        {"{1} < 2", "line 1, column 5: cannot compare a list with a number"},
        {"item 3 of {1}", "line 1, column 1: there is no such item"},
        {"item 0 of {1}", "line 1, column 1: there is no such item"},
        {"POSIX path of {}", "line 1, column 1: cannot make an empty list into a file path"},
        {"POSIX path of {alias \"Macintosh HD:a\", alias \"Macintosh HD:b\"}",
         "line 1, column 1: cannot make a list into a file path"},
        {"POSIX path of missing value", "line 1, column 1: cannot make the missing value into a file path"},
        {"POSIX path of {missing value}", "line 1, column 1: cannot make a list into a file path"},
        {"\"abc\" as integer", "line 1, column 7: cannot make a text into an integer"},
        {"it", "line 1, column 1: no application is told"},
        {"repeat with i from 1 to 2 by 0\nend", "line 1, column 1: a repeat by 0 has no end"},
        {"error \"boo\"", "line 1, column 1: boo"},
        {"try\n1 / 0\nend try\nitem 1 of {}", "line 4, column 1: there is no such item"},
        {"set x to {}\nset end of x to x\nx", "line 1, column 1: the result lies too deep"},
    };
}

INSTANTIATE_TEST_SUITE_P(Failures, FailureTest, testing::ValuesIn(failures()));

TEST(DescriptorTest, readsAOneItemListAsItsItem) {
    InterpretedAppleScript script({});
    EXPECT_EQ(script.executeAndReturnError("{{\"a\"}}").value().stringValue(), "a");
    EXPECT_EQ(script.executeAndReturnError("{{}}").value().stringValue(), std::nullopt);
    EXPECT_EQ(script.executeAndReturnError("{{missing value}}").value().stringValue(), "msng");
}

TEST(InterpretedAppleScriptTest, givesTheMissingValueForAScriptWithoutResult) {
    InterpretedAppleScript script({});
    const Result<Descriptor> result = script.executeAndReturnError("if false then 1");
    ASSERT_TRUE(result);
    EXPECT_EQ(result.value(), Descriptor());
}

} // namespace
} // namespace songsweep
