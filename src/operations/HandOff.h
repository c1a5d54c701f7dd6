// SPDX-License-Identifier: MIT
#pragma once

#include "operations/SpinThenPark.h"

#include <QBasicTimer>
#include <QObject>

#include <atomic>
#include <functional>
#include <thread>

namespace songsweep {

/// The machinery of the notification centre: one poster at a time hands a batch to the main thread.
///
/// It knows nothing of what is in a batch, only whose it is. All that both sides share is one atomic phase;
/// the batch belongs to the main thread while the phase is `posted`, else to the poster whose turn it is.
/// The main thread is woken by an event of its loop, and only if it is `away`. Make it on the main thread.
class HandOff final : public QObject {
  public:
    /// What the main thread does.
    struct Handlers {
        std::function<void()> posted;    ///< with the batch that was passed
        std::function<void()> countsDue; ///< with the counts, some time after they were asked for
    };

    explicit HandOff(Handlers handlers);
    ~HandOff() override; ///< closes, and waits until no poster is inside any more

    /// Counts a poster in for as long as it may touch the hand-off or a batch.
    class Presence {
      public:
        explicit Presence(HandOff& handOff)
            : m_posters(handOff.m_postersInside) {
            m_posters.fetch_add(1, std::memory_order_acq_rel);
        }
        Presence(const Presence&) = delete;
        Presence& operator=(const Presence&) = delete;
        ~Presence() { m_posters.fetch_sub(1, std::memory_order_acq_rel); }

      private:
        std::atomic<int>& m_posters;
    };

    /// A poster that is present; one at a time. Returns when the batch was handled, false once closed.
    bool pass();
    /// A poster that is present. The counts are due within 50 ms.
    void askForCounts();
    /// Main thread. Nothing is handled any more, and nobody waits.
    void close();

    bool isMainThread() const { return std::this_thread::get_id() == m_mainThread; }
    bool isClosed() const { return m_phase.load(std::memory_order_acquire) == Phase::closed; }

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
    bool passPhase();
    bool waitUntilHandled();
    void wakeMainThread();

    // Main thread
    bool isPosted() const { return m_phase.load(std::memory_order_acquire) == Phase::posted; }
    void startCountTimer();
    void handlePosted();
    void finishBatch(Phase next);
    bool watchForNext();

    const Handlers m_handlers;
    const std::thread::id m_mainThread = std::this_thread::get_id();
    std::atomic<Phase> m_phase = Phase::away;
    std::atomic<int> m_postersInside = 0;
    std::atomic<bool> m_countsAsked = false; ///< the main thread is to look after the counts
    SpinThenPark m_posterWait;
    SpinThenPark m_watchWait;
    QBasicTimer m_countTimer;
    bool m_batchInHand = false;
};

} // namespace songsweep
