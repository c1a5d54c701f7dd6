// SPDX-License-Identifier: MIT
#pragma once

#include "operations/NotificationCenter.h"
#include "operations/Patience.h"

#include <QBasicTimer>
#include <QObject>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

namespace songsweep {

/// The machinery of the notification centre: one poster at a time hands a batch to the main thread.
///
/// A batch is the counts that were waiting and then, as a rule, one event. All that both sides share is one
/// atomic phase; the batch belongs to the main thread while the phase is `posted`, else to the poster that
/// holds the posting lock. The main thread is woken by an event of its loop, and only if it is `away`.
class NotificationCenter::HandOff final : public QObject {
  public:
    HandOff();
    ~HandOff() override; ///< closes, and waits until no poster is inside any more

    void setObserver(Observer observer) { m_observer = std::move(observer); }
    void post(const WorkerEvent& event);
    bool flush();
    const Operation* handling() const { return m_handling; }
    void close();

  protected:
    void customEvent(QEvent* wakeUp) override;
    void timerEvent(QTimerEvent* countsAreDue) override;

  private:
    enum class Phase : int {
        away,     ///< the main thread is in its loop, maybe asleep
        watching, ///< the main thread looks at the phase
        posted,   ///< a batch waits or is in hand
        closed,   ///< nothing is handled any more
    };

    // Posting side
    void postCount(const WorkerEvent& event);
    bool postBatch(const WorkerEvent* last);
    bool passPhase();
    bool waitUntilHandled();
    void takeCounts(std::vector<WorkerEvent>& into);
    void wakeMainThread();

    // Main thread
    bool isMainThread() const { return std::this_thread::get_id() == m_mainThread; }
    bool isPosted() const { return m_phase.load(std::memory_order_acquire) == Phase::posted; }
    bool isClosed() const { return m_phase.load(std::memory_order_acquire) == Phase::closed; }
    void startCountTimer();
    void handlePosted();
    void finishBatch(Phase next);
    bool watchForNext();
    void handle(const std::vector<WorkerEvent>& events);
    void handle(const WorkerEvent& event);

    const std::thread::id m_mainThread = std::this_thread::get_id();
    std::atomic<Phase> m_phase = Phase::away;
    std::atomic<int> m_postersInside = 0;

    std::mutex m_posting; ///< held by a poster from building its batch until that was handled
    std::vector<WorkerEvent> m_batch;
    Patience m_posterPatience;

    std::mutex m_countsLock;
    std::vector<WorkerEvent> m_counts; ///< posted, and waiting to ride along
    bool m_countTimerAsked = false;    ///< the main thread was asked to look after the counts

    Observer m_observer;
    Patience m_watchPatience;
    QBasicTimer m_countTimer;
    const Operation* m_handling = nullptr;
    bool m_batchInHand = false;
};

} // namespace songsweep
