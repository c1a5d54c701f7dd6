// SPDX-License-Identifier: MIT
//
// What one worker event costs, posted a million times to a main thread that runs its event loop, beside
// Qt's blocking queued call in the same run: on a quiet machine, and with a busy process on each core.
//
//   event-benchmark --benchmark_counters_tabular=true
#include "BusyCores.h"
#include "operations/NotificationCenter.h"
#include "operations/WorkerEvent.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMetaObject>

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <optional>
#include <thread>

namespace songsweep::bench {
namespace {

constexpr int manyEvents = 1000000;
enum Machine { quiet, busy };

/// Runs the work on a thread while the main thread runs its loop. Returns the wall-clock seconds it took.
double secondsOfPosting(const std::function<void()>& work) {
    QEventLoop loop;
    std::chrono::duration<double> time{};
    std::thread worker([&] {
        const auto start = std::chrono::steady_clock::now();
        work();
        time = std::chrono::steady_clock::now() - start;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
    return time.count();
}

void measure(benchmark::State& state, const std::function<void()>& work) {
    std::optional<BusyCores> load;
    if (state.range(0) == busy) load.emplace();
    double seconds = 0;
    for ([[maybe_unused]] const auto turn : state) {
        const double time = secondsOfPosting(work);
        state.SetIterationTime(time);
        seconds += time;
    }
    const auto events = static_cast<double>(state.iterations()) * manyEvents;
    state.counters["us_an_event"] = seconds / events * 1e6;
}

void postEvents(benchmark::State& state) {
    NotificationCenter center;
    int handled = 0;
    center.setObserver([&handled](const WorkerEvent&) { ++handled; });
    measure(state, [&center] {
        for (int event = 0; event < manyEvents; ++event)
            center.post({EventName::step2, {}, nullptr});
    });
}

/// Nine counts to every event that is waited for, as a grouping with one in ten a duplicate posts them.
void postCountsAmongEvents(benchmark::State& state) {
    NotificationCenter center;
    int handled = 0;
    center.setObserver([&handled](const WorkerEvent&) { ++handled; });
    measure(state, [&center] {
        for (int event = 0; event < manyEvents; ++event) {
            center.post({event % 10 == 0 ? EventName::step2 : EventName::progress, {}, nullptr});
        }
    });
}

void postCountsAlone(benchmark::State& state) {
    NotificationCenter center;
    int handled = 0;
    center.setObserver([&handled](const WorkerEvent&) { ++handled; });
    measure(state, [&center] {
        for (int event = 0; event < manyEvents; ++event)
            center.post({EventName::progress, {}, nullptr});
        center.post({EventName::buildFinish, {}, nullptr});
    });
}

void callBlockingQueued(benchmark::State& state) {
    QObject receiver;
    int handled = 0;
    measure(state, [&] {
        for (int event = 0; event < manyEvents; ++event) {
            QMetaObject::invokeMethod(
                &receiver, [&handled] { ++handled; }, Qt::BlockingQueuedConnection);
        }
    });
}

void onQuietAndBusyMachine(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("busy")->Arg(quiet)->Arg(busy)->Iterations(1)->UseManualTime();
    benchmark->Unit(benchmark::kMillisecond);
}

BENCHMARK(callBlockingQueued)->Apply(onQuietAndBusyMachine);
BENCHMARK(postEvents)->Apply(onQuietAndBusyMachine);
BENCHMARK(postCountsAmongEvents)->Apply(onQuietAndBusyMachine);
BENCHMARK(postCountsAlone)->Apply(onQuietAndBusyMachine);

} // namespace
} // namespace songsweep::bench

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
