// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Limits.h"

#include "scripting/InterpretedAppleScript.h"

#include <gtest/gtest.h>

namespace songsweep {
namespace {

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// The reason why a text fails, without its place; empty when it does not.
std::string reasonOf(const std::string& source) {
    InterpretedAppleScript script({});
    const Result<Descriptor> result = script.executeAndReturnError(source);
    if (result) return {};
    return result.error().message.substr(result.error().message.find(": ") + 2);
}

struct Case {
    const char* name;
    std::string source;
    const char* reason;
};

class DeepTextTest : public testing::TestWithParam<Case> {};

TEST_P(DeepTextTest, IsRefused) { EXPECT_EQ(reasonOf(GetParam().source), GetParam().reason); }

constexpr const char* tooDeep = "the text is nested too deep";
constexpr int many = 10000;

INSTANTIATE_TEST_SUITE_P(
    Limits, DeepTextTest,
    testing::Values(Case{"parentheses", repeated("(", many) + "1" + repeated(")", many), tooDeep},
                    Case{"lists", repeated("{", many) + repeated("}", many), tooDeep},
                    Case{"brackets", repeated("[", many), tooDeep},
                    Case{"nots", repeated("not ", many) + "true", tooDeep},
                    Case{"signs", repeated("-", 1) + repeated(" - ", many) + "1", tooDeep},
                    Case{"pluses", repeated("+ ", many) + "1", tooDeep},
                    Case{"ofs", repeated("length of ", many) + "x", tooDeep},
                    Case{"counts", repeated("count ", many) + "x", tooDeep},
                    Case{"gets", repeated("get ", many) + "x", tooDeep},
                    Case{"aliases", repeated("alias ", many) + "x", tooDeep},
                    Case{"ifs", repeated("if true then ", many) + "1", tooDeep},
                    Case{"blocks", repeated("try\n", many), tooDeep},
                    Case{"repeats", repeated("repeat\n", many), tooDeep},
                    Case{"tells", repeated("tell x to ", many) + "y", tooDeep},
                    Case{"concatenations", "1" + repeated(" & 1", many), "this is too long"},
                    Case{"sums", "1" + repeated(" + 1", many), "this is too long"},
                    Case{"conjunctions", "true" + repeated(" and true", many), "this is too long"},
                    Case{"possessives", "x" + repeated("'s length", many), "this is too long"},
                    Case{"comments", repeated("(* ", many), "the comment has no end"}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(LimitsTest, AllowOrdinaryNesting) {
    EXPECT_EQ(reasonOf(repeated("(", 40) + "1" + repeated(")", 40)), "");
    EXPECT_EQ(reasonOf("\"a\"" + repeated(" & \"b\"", 300)), "");
    EXPECT_EQ(reasonOf(repeated("if true then\n", 40) + "1\n" + repeated("end if\n", 40)), "");
}

TEST(LimitsTest, EndAnEndlessLoop) {
    EXPECT_EQ(reasonOf("repeat\nend repeat"), "the script takes too many steps");
}

TEST(LimitsTest, EndAnEndlessLoopThatCatchesErrors) {
    EXPECT_EQ(reasonOf("repeat\ntry\nrepeat\nend repeat\nend try\nend repeat"),
              "the script takes too many steps");
}

TEST(LimitsTest, EndATextWhoseLastStatementCatchesErrors) {
    EXPECT_EQ(reasonOf("try\nrepeat\nend repeat\nend try"), "the script takes too many steps");
}

TEST(LimitsTest, CountTheBytesOfJoinedTextsAsSteps) {
    // Reading a variable of a MiB takes 16 384 steps; joining it to another text takes as many again.
    const std::string aMiB = "set s to \"x\"\nrepeat 20 times\nset s to s & s\nend repeat\n";
    EXPECT_EQ(reasonOf(aMiB + "repeat 130 times\nset t to s & \"x\"\nend repeat"),
              "the script takes too many steps");
    EXPECT_EQ(reasonOf(aMiB + "repeat 130 times\nset t to \"x\" & s\nend repeat"),
              "the script takes too many steps");
    EXPECT_EQ(reasonOf(aMiB + "repeat 130 times\nset t to s\nend repeat"), "");
}

TEST(LimitsTest, RefuseATextThatGrowsTooLong) {
    EXPECT_EQ(reasonOf("set s to \"x\"\nrepeat\nset s to s & s\nend repeat"), "the text is too long");
}

TEST(LimitsTest, EndALoopThatKeepsLongTexts) {
    EXPECT_EQ(reasonOf("set s to \"x\"\nrepeat 20 times\nset s to s & s\nend repeat\nset l to {}\nrepeat\n"
                       "set end of l to s\nend repeat"),
              "the script takes too many steps");
}

TEST(LimitsTest, RefuseAListThatGrowsTooLong) {
    EXPECT_EQ(reasonOf("set l to {1}\nrepeat\nset l to l & l\nend repeat"), "the list is too long");
}

TEST(LimitsTest, RefuseAListThatLiesTooDeep) {
    EXPECT_EQ(reasonOf("set l to {}\nrepeat\nset l to {l}\nend repeat"), "the list lies too deep");
}

TEST(LimitsTest, SurviveAChainOfListsOfAnyLength) {
    // Each list is put into the one before, so none of them is made deep.
    EXPECT_EQ(
        reasonOf("set a to {}\nset b to a\nrepeat 30000 times\nset n to {}\nset end of b to n\nset b to n\n"
                 "end repeat\nset a to 1\nset b to 1"),
        "");
}

TEST(LimitsTest, SurviveAListThatHoldsItself) {
    EXPECT_EQ(reasonOf("set a to {}\nset end of a to a\na"), "the result lies too deep");
    EXPECT_EQ(reasonOf("set a to {}\nset end of a to a\na = {a}"), "the list lies too deep");
    EXPECT_EQ(reasonOf("set a to {}\nset end of a to a\na as text"), "the list lies too deep");
    EXPECT_EQ(reasonOf("set a to {}\nset end of a to a\ncopy a to b"), "the list lies too deep");
    EXPECT_EQ(reasonOf("set a to {}\nset end of a to a\n1"), "");
}

TEST(LimitsTest, EndTheReadingOfAListThatDoubles) {
    EXPECT_EQ(reasonOf("set a to {1}\nrepeat 60 times\nset a to {a, a}\nend repeat\na"),
              "the script takes too many steps");
}

TEST(LimitsTest, RefuseATextOfTooManyBytes) {
    EXPECT_EQ(reasonOf(std::string(interpreter::maximumSourceBytes + 1, ' ')), "the text is too long");
}

} // namespace
} // namespace songsweep
