// SPDX-License-Identifier: MIT
#include "scripting/FakeApplications.h"
#include "scripting/interpreter/Interpreter.h"
#include "scripting/interpreter/Program.h"
#include "support/SystemTexts.h"

#include <benchmark/benchmark.h>

namespace songsweep {
namespace {

constexpr int batchSize = 50;

test::FakeWorld worldOfOneBatch() {
    test::FakeWorld world;
    world.playlists = {{"Library", true, true, {}}};
    for (int i = 0; i < batchSize; ++i) {
        const std::string id = "00A" + std::to_string(i);
        world.playlists[0].tracks.push_back(test::fakeTrack("Track " + id, id, "/music/" + id + ".mp3"));
    }
    return world;
}

void runText(benchmark::State& state, const std::string& text) {
    test::FakeWorld world = worldOfOneBatch();
    interpreter::Interpreter interpreter(test::fakeApplications(world));
    for (auto round : state) {
        world.commands.clear();
        auto result = interpreter.run(text);
        if (!result) state.SkipWithError(result.error().message.c_str());
        benchmark::DoNotOptimize(result);
    }
}

void parseText(benchmark::State& state, const std::string& text) {
    test::FakeWorld world;
    const interpreter::Applications applications(test::fakeApplications(world));
    for (auto round : state) {
        auto program = interpreter::parsedProgram(text, applications);
        if (!program) state.SkipWithError(program.error().message.c_str());
        benchmark::DoNotOptimize(program);
    }
}

void failText(benchmark::State& state, const std::string& text) {
    interpreter::Interpreter interpreter({});
    for (auto round : state) {
        auto result = interpreter.run(text);
        if (result) state.SkipWithError("the text was expected to fail");
        benchmark::DoNotOptimize(result);
    }
}

// The fake applications look their properties up by name in a map, so their share in these figures is larger
// than that of the embedded ones.
BENCHMARK_CAPTURE(parseText, location, test::locationText("00A1"));
BENCHMARK_CAPTURE(runText, location, test::locationText("00A1"));
BENCHMARK_CAPTURE(parseText, batch, test::batchText(1, 1, batchSize));
BENCHMARK_CAPTURE(runText, batch, test::batchText(1, 1, batchSize));
BENCHMARK_CAPTURE(runText, count, test::trackCountText);
BENCHMARK_CAPTURE(failText, endlessLoop, std::string("repeat\nend repeat"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(failText, parentheses, std::string(10000, '('))->Unit(benchmark::kMillisecond);

} // namespace
} // namespace songsweep

BENCHMARK_MAIN();
