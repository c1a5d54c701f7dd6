// SPDX-License-Identifier: MIT
#include "operations/HandOff.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace songsweep {

namespace {

constexpr auto posterSpin = std::chrono::microseconds(50);
constexpr auto mainThreadWatch = std::chrono::microseconds(30);
constexpr std::size_t mostCounts = 4096;

bool isCount(EventName name) { return name == EventName::progress || name == EventName::deleteAddCount; }

/// Counts a poster in for as long as it may touch the hand-off.
class Presence {
  public:
    explicit Presence(std::atomic<int>& posters)
        : m_posters(posters) {
        m_posters.fetch_add(1, std::memory_order_acq_rel);
    }
    Presence(const Presence&) = delete;
    Presence& operator=(const Presence&) = delete;
    ~Presence() { m_posters.fetch_sub(1, std::memory_order_acq_rel); }

  private:
    std::atomic<int>& m_posters;
};

} // namespace

NotificationCenter::HandOff::HandOff()
    : m_posterPatience(posterSpin)
    , m_watchPatience(mainThreadWatch) {
    m_counts.reserve(mostCounts);
    m_batch.reserve(mostCounts + 1);
}

NotificationCenter::HandOff::~HandOff() {
    close();
    while (m_postersInside.load(std::memory_order_acquire) > 0)
        std::this_thread::yield();
}

void NotificationCenter::HandOff::close() {
    m_phase.store(Phase::closed, std::memory_order_release);
    m_phase.notify_all();
}

void NotificationCenter::HandOff::post(const WorkerEvent& event) {
    const Presence inside(m_postersInside);
    if (isClosed()) return;
    if (isMainThread()) {
        handle(event);
    } else if (isCount(event.name)) {
        postCount(event);
    } else {
        postBatch(&event);
    }
}

bool NotificationCenter::HandOff::flush() {
    const Presence inside(m_postersInside);
    return !isMainThread() && postBatch(nullptr);
}

void NotificationCenter::HandOff::postCount(const WorkerEvent& event) {
    bool isFull = false;
    bool asks = false;
    {
        const std::lock_guard lock(m_countsLock);
        m_counts.push_back(event);
        isFull = m_counts.size() >= mostCounts;
        asks = !std::exchange(m_countTimerAsked, true);
    }
    if (isFull) {
        postBatch(nullptr);
    } else if (asks) {
        wakeMainThread();
    }
}

bool NotificationCenter::HandOff::postBatch(const WorkerEvent* last) {
    const std::lock_guard lock(m_posting);
    if (isClosed()) return false;
    takeCounts(m_batch);
    if (last != nullptr) m_batch.push_back(*last);
    return passPhase() && waitUntilHandled();
}

void NotificationCenter::HandOff::takeCounts(std::vector<WorkerEvent>& into) {
    into.clear();
    const std::lock_guard lock(m_countsLock);
    into.swap(m_counts);
}

bool NotificationCenter::HandOff::passPhase() {
    auto found = m_phase.load(std::memory_order_relaxed);
    do {
        if (found == Phase::closed) return false;
    } while (!m_phase.compare_exchange_weak(found, Phase::posted, std::memory_order_acq_rel));
    if (found == Phase::away) wakeMainThread();
    return true;
}

bool NotificationCenter::HandOff::waitUntilHandled() {
    if (!m_posterPatience.spinUntil([this] { return !isPosted(); })) {
        m_phase.wait(Phase::posted, std::memory_order_acquire);
    }
    return !isClosed();
}

void NotificationCenter::HandOff::wakeMainThread() {
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

} // namespace songsweep
