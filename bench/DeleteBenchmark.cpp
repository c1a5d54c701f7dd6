// SPDX-License-Identifier: MIT
// Taking a tenth of the rows out of the list, with scripts that do nothing: linear in the rows.
#include "delete/Cleanup.h"
#include "delete/DeleteProc.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "scripting/AppleScript.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

using namespace songsweep;

class IdleScripts final : public AppleScript {
  public:
    Result<Descriptor> executeAndReturnError(std::string_view) override { return Descriptor(); }
};

DisplayedList rows(std::int64_t count) {
    DisplayedList list;
    list.storage = std::make_shared<TrackStorage>();
    for (std::int64_t i = 0; i < count; ++i) {
        TrackRecord& record = list.storage->makeRecord();
        record.pid = "00A1B2C3D4E5F607";
        record.gid = static_cast<std::int32_t>(i / 10) + 1;
        record.checkbox = i % 10 == 9;
        list.rows.push_back(&record);
    }
    return list;
}

void deleteATenth(benchmark::State& state) {
    const DisplayedList all = rows(state.range(0));
    NotificationCenter<WorkerEvent> center;
    IdleScripts scripts;
    Files files;
    SilentLog log;
    Cleanup cleanup;
    for (auto _ : state) {
        state.PauseTiming();
        DisplayedList list = all;
        state.ResumeTiming();
        DeleteProc operation(list, false, {center, scripts, files, log, cleanup});
        operation.main();
        benchmark::DoNotOptimize(list.rows.data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(deleteATenth)
    ->Arg(62'500)
    ->Arg(250'000)
    ->Arg(1'000'000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
