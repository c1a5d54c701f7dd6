// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ReferenceParser.h"

#include "scripting/TextCase.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

using test::TextCase;

class ReferenceParserTest : public testing::TestWithParam<TextCase> {};

TEST_P(ReferenceParserTest, GivesTheResult) {
    EXPECT_EQ(test::outcomeOf(GetParam().source), GetParam().result) << GetParam().source;
}

std::vector<TextCase> references() {
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
        {"month of date \"2026-11-21\"", "November"},
        {"weekday of date \"2026-11-21\"", "Saturday"},
        {"(date \"2024-02-29\")'s weekday", "Thursday"},
        {"{year, month} of date \"2026-11-21\"", "{2026, November}"},
        {"set d to date \"2026-11-21\"\nset {y, m} to {year, month} in d\nm", "November"},
        {"{length} of \"abc\"", "{3}"},
        {"set name to 1\nset artist to 2\n{name, artist}", "{1, 2}"},
        {"exists item 3 of {1, 2}", "false"},
        {"item 1 of {1, 2} exists", "true"},
    };
}

INSTANTIATE_TEST_SUITE_P(References, ReferenceParserTest, testing::ValuesIn(references()));

} // namespace
} // namespace songsweep
