// SPDX-License-Identifier: MIT
#include "scripting/interpreter/statements/StatementParser.h"

#include "scripting/TextCase.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::TextCase;

class StatementParserTest : public testing::TestWithParam<TextCase> {};

TEST_P(StatementParserTest, GivesTheResult) {
    EXPECT_EQ(test::outcomeOf(GetParam().source), GetParam().result) << GetParam().source;
}

std::vector<TextCase> statements() {
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
        {"set l to {1, 2}\nrepeat with x in l\nset end of l to x\nend repeat\nl", "{1, 2, 1, 2}"},
        {"set l to {1, 2}\nset seen to {}\nrepeat with x in l\nset beginning of l to 0\nset item -1 of l to "
         "9\n"
         "set end of seen to x\nend repeat\nseen",
         "{1, 2}"},
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
        {"with timeout of 5 seconds\n7\nend timeout", "7"},
        {"with timeout 1 second\nreturn 7\nend\n8", "7"},
        {"set t to 2 * minutes\nwith timeout of (t + 1) seconds\n7\nend timeout", "7"},
        {"1 + 1\nresult + 1", "3"},
        {"-- a comment\n5 # another\n(* a (* nested *)\ncomment *)", "5"},
        {"set x to 1 + ¬\n  2\nx", "3"},
        {"set x to ¬  \r\n 2\r\nx\r", "2"},
        {"  set   x\tto\t{ 1,2 ,  3 }\n\n\n  x  ", "{1, 2, 3}"},
        {"SET x TO 5\nIF x IS 5 THEN\nx\nEND IF", "5"},
    };
}

INSTANTIATE_TEST_SUITE_P(Statements, StatementParserTest, testing::ValuesIn(statements()));

} // namespace
} // namespace songsweep
