// SPDX-License-Identifier: MIT
#include "operations/HandOff.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace songsweep {

namespace {

constexpr auto posterSpin = std::chrono::microseconds(50);
constexpr auto mainThreadWatch = std::chrono::microseconds(30);

} // namespace

HandOff::HandOff(Handlers handlers)
    : m_handlers(std::move(handlers))
    , m_posterWait(posterSpin)
    , m_watchWait(mainThreadWatch) {}

HandOff::~HandOff() {
    close();
    while (m_postersInside.load(std::memory_order_acquire) > 0)
        std::this_thread::yield();
}

void HandOff::close() {
    m_phase.store(Phase::closed, std::memory_order_release);
    m_phase.notify_all();
}

bool HandOff::pass() { return passPhase() && waitUntilHandled(); }

// Whoever clears the flag looks at the counts after that, so a count that finds it set is not forgotten.
void HandOff::askForCounts() {
    if (m_countsAsked.load(std::memory_order_acquire)) return; // so that a count costs no exclusive access
    if (!m_countsAsked.exchange(true, std::memory_order_acq_rel)) wakeMainThread();
}

bool HandOff::passPhase() {
    auto found = m_phase.load(std::memory_order_relaxed);
    do {
        if (found == Phase::closed) return false;
    } while (!m_phase.compare_exchange_weak(found, Phase::posted, std::memory_order_acq_rel));
    if (found == Phase::away) wakeMainThread();
    return true;
}

bool HandOff::waitUntilHandled() {
    if (!m_posterWait.spinUntil([this] { return !isPosted(); })) {
        m_phase.wait(Phase::posted, std::memory_order_acquire);
    }
    return !isClosed();
}

void HandOff::wakeMainThread() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

} // namespace songsweep
