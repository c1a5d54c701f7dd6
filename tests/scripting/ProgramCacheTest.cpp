// SPDX-License-Identifier: MIT
#include "scripting/interpreter/ProgramCache.h"

#include "scripting/FakeApplications.h"
#include "scripting/SourceNotation.h"
#include "scripting/interpreter/Interpreter.h"
#include "support/SystemTexts.h"

#include <gmock/gmock.h>

#include <random>

namespace songsweep::interpreter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ProgramCacheTest : public testing::Test {
  protected:
    /// The program of a source that can be read.
    BoundProgram bound(const std::string& source) {
        auto program = m_cache.program(source);
        EXPECT_TRUE(program) << source;
        return program ? std::move(program).value() : BoundProgram{};
    }
    std::string reasonOf(const std::string& source) {
        const auto program = m_cache.program(source);
        return program ? "" : program.error().message;
    }

    test::FakeWorld m_world;
    Applications m_applications{test::fakeApplications(m_world)};
    ProgramCache m_cache{m_applications};
};

TEST_F(ProgramCacheTest, ReadsASourceOnceForAllThatStandsInQuotes) {
    const BoundProgram first = bound(test::locationText("AB12"));
    EXPECT_THAT(first.texts, ElementsAre("AB12"));
    const BoundProgram second = bound(test::locationText("CD345"));
    EXPECT_EQ(second.program, first.program);
    EXPECT_THAT(second.texts, ElementsAre("CD345"));
    EXPECT_EQ(bound(test::locationText("AB12")).program, first.program);
}

TEST_F(ProgramCacheTest, TakesTheEscapesOutOfWhatItBinds) {
    const Program* const program = bound("{\"a\", 1, \"b\"}").program;
    const BoundProgram other = bound(R"({"", 1, "x\" -- \\\n"})");
    EXPECT_EQ(other.program, program);
    EXPECT_THAT(other.texts, ElementsAre("", "x\" -- \\\n"));
}

TEST_F(ProgramCacheTest, ReadsASourceAnewThatDiffersInMore) {
    const Program* const program = bound("{\"a\", 1}").program;
    for (const char* source :
         {"{\"a\", 2}", "{\"a\", 1} ", " {\"a\", 1}", "{\"a\" , 1}", "{\"a\", \"1\"}", "{1}"})
        EXPECT_NE(bound(source).program, program) << source;
    EXPECT_EQ(bound("{\"a\", 1}").program, program);
}

TEST_F(ProgramCacheTest, RefusesWhatCannotBeReadAsBefore) {
    bound("{\"a\", 1}");
    EXPECT_THAT(reasonOf("{\"a\\q\", 1}"), HasSubstr("unknown escape"));
    EXPECT_THAT(reasonOf("{\"a\\"), HasSubstr("the text has no end"));
    EXPECT_THAT(reasonOf("{\"a, 1}"), HasSubstr("the text has no end"));
}

TEST_F(ProgramCacheTest, AnApplicationAndADateAreNoValuesToBind) {
    EXPECT_THAT(bound("tell application \"iTunes\" to stop").texts, IsEmpty());
    EXPECT_THAT(reasonOf("tell application \"Mail\" to stop"), HasSubstr("there is no application “Mail”"));
    EXPECT_THAT(bound("date \"2026-01-01\"").texts, IsEmpty());
    EXPECT_THAT(reasonOf("date \"yesterday\""), HasSubstr("not a date"));
}

TEST_F(ProgramCacheTest, AQuoteInACommentBindsNothing) {
    const Program* const program = bound("1 -- \"one\"").program;
    EXPECT_NE(bound("1 -- \"two\"").program, program);
}

TEST_F(ProgramCacheTest, ForgetsTheProgramThatWasNotUsedForLongest) {
    const auto source = [](std::size_t number) { return "{\"a\", " + std::to_string(number) + "}"; };
    for (std::size_t number = 0; number < ProgramCache::mostPrograms; ++number)
        bound(source(number));
    const Program* const first = bound(source(0)).program;
    bound("\"one more\"");
    EXPECT_EQ(bound("{\"b\", 0}").program, first) << "used a moment ago";
}

TEST_F(ProgramCacheTest, ALongSourceIsRead) {
    const std::string source = "{\"a\"" + std::string(ProgramCache::longestSource, ' ') + "}";
    EXPECT_THAT(bound(source).texts, ElementsAre("a"));
    EXPECT_THAT(bound(source).texts, ElementsAre("a"));
}

/// What a text gives, and what it had done.
std::string outcomeOf(Interpreter& interpreter, test::FakeWorld& world, const std::string& source) {
    world.commands.clear();
    const auto result = interpreter.run(source, Interpreter::Places::leftOut);
    std::string outcome = !result          ? "error: " + result.error().message
                          : result.value() ? sourceNotation(*result.value())
                                           : "";
    for (const std::string& command : world.commands)
        outcome += "; " + command;
    return outcome;
}

test::FakeWorld worldOfTwo() {
    test::FakeWorld world;
    world.playlists = {{"Music", true, true, {test::fakeTrack("One", "AB12", "/one.mp3")}},
                       {"Party", false, true, {test::fakeTrack("Two", "CD34", "")}}};
    return world;
}

/// The system's texts with bytes changed, mostly those that mean something to a text in quotes.
std::string changedAtRandom(std::string text, std::mt19937& random) {
    constexpr std::string_view letters = "\"\\\n-*()a1 |{}n";
    for (unsigned changes = 1 + random() % 3; changes > 0; --changes) {
        const std::size_t place = random() % text.size();
        const char letter = letters[random() % letters.size()];
        if (random() % 2 == 0)
            text[place] = letter;
        else
            text.insert(place, 1, letter);
    }
    return text;
}

TEST(BoundProgramTest, GivesWhatAnInterpreterGivesThatReadsEachTextAnew) {
    test::FakeWorld keptWorld = worldOfTwo();
    Interpreter kept(test::fakeApplications(keptWorld));
    std::mt19937 random(20);
    const std::vector<std::string> texts = test::allTexts();
    for (int turn = 0; turn < 4000; ++turn) {
        const std::string& text = texts[random() % texts.size()];
        const std::string source = turn % 4 == 0 ? text : changedAtRandom(text, random);
        test::FakeWorld freshWorld = worldOfTwo();
        Interpreter fresh(test::fakeApplications(freshWorld));
        EXPECT_EQ(outcomeOf(kept, keptWorld, source), outcomeOf(fresh, freshWorld, source)) << source;
    }
}

} // namespace
} // namespace songsweep::interpreter
