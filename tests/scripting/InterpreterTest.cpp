// SPDX-License-Identifier: MIT
#include "scripting/interpreter/Interpreter.h"

#include "scripting/FakeApplications.h"
#include "scripting/InterpretedAppleScript.h"
#include "scripting/TextCase.h"
#include "support/SystemTexts.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>
#include <thread>

namespace songsweep {
namespace {

using test::TextCase;

/// A text that fails, and how.
class InterpreterFailureTest : public testing::TestWithParam<TextCase> {};

TEST_P(InterpreterFailureTest, SaysWhereAndWhy) {
    EXPECT_EQ(test::outcomeOf(GetParam().source), std::string("error: ") + GetParam().result)
        << GetParam().source;
}

std::vector<TextCase> failures() {
    return {
        {"1 +", "line 1, column 4: expected a value, but found the end of the text"},
        {"set x 5", "line 1, column 7: expected “to”, but found “5” behind “x”"},
        {"foo bar", "line 1, column 1: “foo” is no command that is known here"},
        {"5\n  pause 1", "line 2, column 3: “pause” is no command that is known here"},
        {"if true then pause {1}", "line 1, column 14: “pause” is no command that is known here"},
        {"set x to sort name of 5",
         "line 1, column 15: expected the end of the line, but found “name” behind “sort”"},
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
        {"date \"1/1/11\"", "line 1, column 1: “1/1/11” is not a date that can be read"},
        {"date \"11-1-1\"", "line 1, column 1: “11-1-1” is not a date that can be read"},
        {"date \"January 1, 11\"", "line 1, column 1: “January 1, 11” is not a date that can be read"},
        {"date \"1/1/20110\"", "line 1, column 1: “1/1/20110” is not a date that can be read"},
        {"considering case\nend considering", "line 1, column 1: “considering” is not supported"},
        {"on run\nend run", "line 1, column 1: “on” stands outside of any block"},
        {"with transaction\nend transaction",
         "line 1, column 6: expected “timeout”, but found “transaction”"},
        {"with timeout of 5 minutes\nend timeout",
         "line 1, column 19: expected “seconds”, but found “minutes”"},
        {"with timeout of 0 seconds\nend timeout", "line 1, column 17: a timeout is one second at least"},
        {"with timeout of 5 seconds\n1",
         "line 2, column 2: expected “end timeout”, but found the end of the text"},
        {"application id \"iTunes\" is running", "line 1, column 16: there is no application “iTunes”"},
        {"application id 5", "line 1, column 16: expected the ID of an application as a text, but found “5”"},
        {"set x to 5\nx is running",
         "line 2, column 6: “running” is not known: no variable has that name, nor any word here"},
        {"{name, artist} of 5", "line 1, column 2: a number has no such part"},
        {"{name, 5} of 5", "line 1, column 11: expected the end of the line, but found “of”"},
        {"{} of {}", "line 1, column 2: expected a property, but found “}”"},
        {"set {name, artist} of 5 to 6", "line 1, column 5: this cannot be set"},
        {"5 as widget", "line 1, column 6: expected text, integer, real, number, boolean, list or alias, but "
                        "found “widget”"},
        {"pause", "line 1, column 1: “pause” is not known: no variable has that name, nor any word here"},
        {"5\n\n  1 / 0", "line 3, column 5: a number cannot be divided by zero"},
        {"\"a\" + 1", "line 1, column 5: cannot calculate with a text and a number"},
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

INSTANTIATE_TEST_SUITE_P(Failures, InterpreterFailureTest, testing::ValuesIn(failures()));

TEST(InterpreterTest, LeavesThePlaceOfAFailureOutWhereItIsOfNoUse) {
    using interpreter::Interpreter;
    Interpreter interpreter({});
    EXPECT_EQ(interpreter.run("5\n1 / 0", Interpreter::Places::leftOut).error().message,
              "a number cannot be divided by zero");
    EXPECT_EQ(interpreter.run("5\n1 / 0", Interpreter::Places::told).error().message,
              "line 2, column 3: a number cannot be divided by zero");
}

TEST(InterpreterTest, AsksForTheDateWheneverATextDoes) {
    std::int64_t asked = 0;
    interpreter::Interpreter interpreter({}, [&] { return interpreter::Date{++asked}; });
    const auto result = interpreter.run("set a to current date\n(current date) - a");
    ASSERT_TRUE(result);
    EXPECT_EQ(result.value()->int32Value(), 1);
}

TEST(InterpreterTest, KnowsTheSystemsDate) {
    interpreter::Interpreter interpreter({});
    const auto before = interpreter::systemDate();
    const auto result = interpreter.run("current date");
    ASSERT_TRUE(result);
    const auto date = std::get<Descriptor::Date>(result.value()->value());
    EXPECT_GE(date.longDateTime, before.longDateTime);
    EXPECT_LE(date.longDateTime, interpreter::systemDate().longDateTime);
    EXPECT_GT(date.longDateTime, 3'800'000'000) << "counted from 1904";
}

/// A world for texts that are cut or changed at random.
test::FakeWorld worldOfTwo() {
    test::FakeWorld world;
    world.playlists = {
        {"Library", true, true, {test::fakeTrack("One", "00A1", "/a"), test::fakeTrack("Two", "2", "")}},
        {"Rock", false, true, {}}};
    return world;
}

TEST(InterpreterTest, GivesAResultOrAPlacedErrorForATextCutAtAnyByte) {
    test::FakeWorld world = worldOfTwo();
    InterpretedAppleScript script(test::fakeApplications(world));
    int failures = 0;
    for (const std::string& text : test::allTexts()) {
        for (std::size_t length = 0; length < text.size(); ++length) {
            const Result<Descriptor> result = script.executeAndReturnError(text.substr(0, length));
            EXPECT_TRUE(result || result.error().message.starts_with("line ")) << text.substr(0, length);
            failures += result ? 0 : 1;
        }
    }
    EXPECT_GT(failures, 1000);
}

TEST(InterpreterTest, SurvivesTextsChangedAtRandom) {
    test::FakeWorld world = worldOfTwo();
    InterpretedAppleScript script(test::fakeApplications(world));
    std::mt19937 random(20260101);
    const std::vector<std::string> texts = test::allTexts();
    const std::string pieces = "(){}[]\"'|-+*/^&=<>,:\n\\ \xC2\xAC\xE2\x89\xA0\xFF of whose end tell to 1";
    for (int round = 0; round < 3000; ++round) {
        std::string text = texts[random() % texts.size()];
        for (int change = 0; change < 4; ++change)
            text[random() % text.size()] = pieces[random() % pieces.size()];
        const Result<Descriptor> result = script.executeAndReturnError(text);
        EXPECT_TRUE(result || result.error().message.starts_with("line ")) << text;
    }
}

TEST(InterpreterTest, RunsOneTextAtATime) {
    test::FakeWorld world = worldOfTwo();
    InterpretedAppleScript script(test::fakeApplications(world));
    std::atomic<int> counted = 0;
    const auto countOften = [&] {
        for (int i = 0; i < 200; ++i) {
            const Result<Descriptor> result = script.executeAndReturnError(test::trackCountText);
            if (result && result.value().int32Value() == 2) ++counted;
        }
    };
    std::thread other(countOften);
    countOften();
    other.join();
    EXPECT_EQ(counted, 400);
    EXPECT_EQ(world.elementsTaken, 400) << "counted without a lock of its own";
}

} // namespace
} // namespace songsweep
