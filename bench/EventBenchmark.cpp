// SPDX-License-Identifier: MIT
//
// What one worker event costs, posted a million times to a main thread that runs its event loop, beside
// Qt's blocking queued call in the same run: on a quiet machine, and with a busy process on each core. Beside
// it, how far a timer of half seconds strays meanwhile.
//
//   event-benchmark --benchmark_counters_tabular=true
#include "BusyCores.h"
#include "library/WorkerEvent.h"
#include "operations/NotificationCenter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMetaObject>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <optional>
#include <thread>

namespace songsweep::bench {
namespace {

constexpr int manyEvents = 1000000;
enum Machine { quiet, busy };

/// Fires each half second, as the progress display's timer does, and keeps how late it was at worst.
class HalfSeconds {
  public:
    HalfSeconds() {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { note(); });
        m_timer.start(period);
        m_clock.start();
    }

    double worstMilliseconds() const { return m_worst; }

  private:
    static constexpr std::chrono::milliseconds period{500};

    void note() {
        ++m_count;
        const double late = static_cast<double>(m_clock.nsecsElapsed()) / 1e6 - m_count * 500.0;
        m_worst = std::max(m_worst, std::abs(late));
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    int m_count = 0;
    double m_worst = 0;
};

/// What posting took, and how the main thread's timer fared meanwhile.
struct Posting {
    double seconds = 0; ///< of wall-clock time
    double timerMilliseconds = 0;
};

/// Runs the work on a thread while the main thread runs its loop.
Posting timePosting(const std::function<void()>& work) {
    QEventLoop loop;
    const HalfSeconds timer;
    std::chrono::duration<double> time{};
    std::thread worker([&] {
        const auto start = std::chrono::steady_clock::now();
        work();
        time = std::chrono::steady_clock::now() - start;
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
    return {time.count(), timer.worstMilliseconds()};
}

void measure(benchmark::State& state, const std::function<void()>& work) {
    std::optional<BusyCores> load;
    if (state.range(0) == busy) load.emplace();
    double seconds = 0;
    double late = 0;
    for ([[maybe_unused]] const auto turn : state) {
        const Posting posting = timePosting(work);
        state.SetIterationTime(posting.seconds);
        seconds += posting.seconds;
        late = std::max(late, posting.timerMilliseconds);
    }
    const auto events = static_cast<double>(state.iterations()) * manyEvents;
    state.counters["us_an_event"] = seconds / events * 1e6;
    state.counters["timer_ms_off"] = late;
}

void postEvents(benchmark::State& state) {
    NotificationCenter<WorkerEvent> center;
    int handled = 0;
    center.setObserver([&handled](const WorkerEvent&) { ++handled; });
    measure(state, [&center] {
        for (int event = 0; event < manyEvents; ++event)
            center.post({EventName::progressx, {}, nullptr});
    });
}

/// Nine counts to every event that is waited for.
void postCountsAmongEvents(benchmark::State& state) {
    NotificationCenter<WorkerEvent> center;
    int handled = 0;
    center.setObserver([&handled](const WorkerEvent&) { ++handled; });
    measure(state, [&center] {
        for (int event = 0; event < manyEvents; ++event) {
            center.post({event % 10 == 0 ? EventName::progressx : EventName::progress, {}, nullptr});
        }
    });
}

void postCountsAlone(benchmark::State& state) {
    NotificationCenter<WorkerEvent> center;
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
