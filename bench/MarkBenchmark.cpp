// SPDX-License-Identifier: MIT
// Marking a million rows by each rule, against looking at each row once.
#include "dupes/FileKind.h"
#include "dupes/MarkingRules.h"
#include "library/TrackStorage.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace {

using namespace songsweep;

/// Rows as a search leaves them: groups of three, their records all over the storage.
class Rows {
  public:
    explicit Rows(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            m_rows.push_back(&makeRecord(i));
        std::shuffle(m_rows.begin(), m_rows.end(), m_random);
        for (std::size_t i = 0; i < count; ++i)
            m_rows[i]->gid = static_cast<std::int32_t>(i / 3) + 1;
    }

    const TrackRows& get() const { return m_rows; }

  private:
    TrackRecord& makeRecord(std::size_t i) {
        TrackRecord& record = m_storage.makeRecord();
        const auto number = [&](int least, int most) {
            return std::uniform_int_distribution(least, most)(m_random);
        };
        record.bitrate = m_storage.intern(std::to_string(number(64, 320)));
        record.size = m_storage.store(std::to_string(number(1'000'000, 20'000'000)));
        record.playcount = m_storage.intern(std::to_string(number(0, 99)));
        record.location =
            m_storage.store("/Users/ann/Music/iTunes/Artist " + std::to_string(number(0, 9999)) +
                            "/Album/Song " + std::to_string(i) + (i % 4 == 0 ? ".m4a" : ".mp3"));
        record.timev = number(60, 600);
        record.rating = number(0, 5);
        record.dateaddedv = number(1'000'000'000, 1'700'000'000);
        record.hasartwork = number(0, 1) == 1;
        record.isdead = number(0, 19) == 0;
        return record;
    }

    std::mt19937 m_random{20261121};
    TrackStorage m_storage;
    TrackRows m_rows;
};

const TrackRows& millionRows() {
    static const Rows rows(1'000'000);
    return rows.get();
}

void lookAtEachRow(benchmark::State& state) {
    const TrackRows& rows = millionRows();
    for (auto _ : state)
        for (TrackRecord* const record : rows)
            record->checkbox = record->isdead;
}
BENCHMARK(lookAtEachRow)->Unit(benchmark::kMillisecond);

void mark(benchmark::State& state) {
    const TrackRows& rows = millionRows();
    const MarkChoice choice = {static_cast<MarkType>(state.range(0)), state.range(1) == 1,
                               state.range(0) == 100 ? "MP3" : "/Users/ann/Music/iTunes"};
    for (auto _ : state)
        applyMarkChoice(rows, choice);
}
BENCHMARK(mark)
    ->ArgNames({"type", "exceptOne"})
    ->ArgsProduct({{0, 1, 2, 4, 6, 8, 10, 12, 100, 200}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

void listKinds(benchmark::State& state) {
    const TrackRows& rows = millionRows();
    for (auto _ : state)
        benchmark::DoNotOptimize(kindsOf(rows));
}
BENCHMARK(listKinds)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
