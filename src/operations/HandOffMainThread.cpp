// SPDX-License-Identifier: MIT
#include "operations/HandOff.h"

#include <QTimerEvent>

#include <utility>

namespace songsweep {

namespace {

/// The main thread's loop gets its turn at least this often, so that timers and input are served.
constexpr auto longestSlice = std::chrono::milliseconds(8);

/// A count waits 50 ms at most: a slice until the timer starts, this, and a slice until it is heard.
constexpr int countDelayMilliseconds = 30;

/// Sets a value and puts the old one back.
template <typename Value>
class Scoped {
  public:
    Scoped(Value& place, Value value)
        : m_place(place)
        , m_old(std::exchange(place, value)) {}
    Scoped(const Scoped&) = delete;
    Scoped& operator=(const Scoped&) = delete;
    ~Scoped() { m_place = m_old; }

  private:
    Value& m_place;
    Value m_old;
};

} // namespace

// The wake-up's only kind is not looked at; both of its reasons are.
void NotificationCenter::HandOff::customEvent(QEvent*) {
    startCountTimer();
    if (!m_batchInHand && isPosted()) handlePosted();
}

void NotificationCenter::HandOff::startCountTimer() {
    const std::lock_guard lock(m_countsLock);
    if (m_countTimerAsked && !m_countTimer.isActive()) {
        m_countTimer.start(countDelayMilliseconds, Qt::PreciseTimer, this);
    }
}

void NotificationCenter::HandOff::timerEvent(QTimerEvent*) {
    m_countTimer.stop();
    std::vector<WorkerEvent> due;
    {
        const std::lock_guard lock(m_countsLock);
        due.swap(m_counts);
        m_countTimerAsked = false;
    }
    handle(due);
}

void NotificationCenter::HandOff::handlePosted() {
    const auto sliceEnd = std::chrono::steady_clock::now() + longestSlice;
    bool hasNext = true;
    while (hasNext) {
        {
            const Scoped inHand(m_batchInHand, true);
            handle(m_batch);
        }
        const bool watches = std::chrono::steady_clock::now() < sliceEnd && !m_watchPatience.isSpent();
        finishBatch(watches ? Phase::watching : Phase::away);
        hasNext = watches && watchForNext();
    }
}

void NotificationCenter::HandOff::finishBatch(Phase next) {
    auto expected = Phase::posted;
    m_phase.compare_exchange_strong(expected, next, std::memory_order_acq_rel); // fails when closed
    m_phase.notify_one();
}

bool NotificationCenter::HandOff::watchForNext() {
    if (m_watchPatience.spinUntil([this] { return isPosted() || isClosed(); })) return isPosted();
    auto expected = Phase::watching;
    return !m_phase.compare_exchange_strong(expected, Phase::away, std::memory_order_acq_rel) &&
           expected == Phase::posted;
}

void NotificationCenter::HandOff::handle(const std::vector<WorkerEvent>& events) {
    for (const auto& event : events) {
        if (isClosed()) return;
        handle(event);
    }
}

void NotificationCenter::HandOff::handle(const WorkerEvent& event) {
    if (!m_observer) return;
    const Scoped handling(m_handling, event.sender);
    m_observer(event);
}

} // namespace songsweep
