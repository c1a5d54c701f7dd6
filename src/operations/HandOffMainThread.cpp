// SPDX-License-Identifier: MIT
#include "operations/HandOff.h"
#include "operations/Scoped.h"

#include <QTimerEvent>

namespace songsweep {

namespace {

/// The main thread's loop gets its turn at least this often, so that timers and input are served.
constexpr auto longestSlice = std::chrono::milliseconds(8);

/// A count waits 50 ms at most: a slice until the timer starts, this, and a slice until it is heard.
constexpr int countDelayMilliseconds = 30;

} // namespace

// The wake-up's only kind is not looked at; both of its reasons are.
void HandOff::customEvent(QEvent*) {
    startCountTimer();
    if (!m_batchInHand && isPosted()) handlePosted();
}

void HandOff::startCountTimer() {
    if (m_countsAsked.load(std::memory_order_acquire) && !m_countTimer.isActive()) {
        m_countTimer.start(countDelayMilliseconds, Qt::PreciseTimer, this);
    }
}

void HandOff::timerEvent(QTimerEvent*) {
    m_countTimer.stop();
    m_countsAsked.store(false, std::memory_order_release);
    m_handlers.countsDue();
}

void HandOff::handlePosted() {
    const auto sliceEnd = std::chrono::steady_clock::now() + longestSlice;
    bool hasNext = true;
    while (hasNext) {
        {
            const Scoped inHand(m_batchInHand, true);
            m_handlers.posted();
        }
        const bool watches = std::chrono::steady_clock::now() < sliceEnd && !m_watchWait.parksAtOnce();
        finishBatch(watches ? Phase::watching : Phase::away);
        hasNext = watches && watchForNext();
    }
}

void HandOff::finishBatch(Phase next) {
    auto expected = Phase::posted;
    m_phase.compare_exchange_strong(expected, next, std::memory_order_acq_rel); // fails when closed
    m_phase.notify_one();
}

bool HandOff::watchForNext() {
    if (m_watchWait.spinUntil([this] { return isPosted() || isClosed(); })) return isPosted();
    auto expected = Phase::watching;
    return !m_phase.compare_exchange_strong(expected, Phase::away, std::memory_order_acq_rel) &&
           expected == Phase::posted;
}

} // namespace songsweep
