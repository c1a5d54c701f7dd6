// SPDX-License-Identifier: MIT
#pragma once

#include "operations/EventCenter.h"
#include "operations/HandOff.h"
#include "operations/Scoped.h"

#include <concepts>
#include <cstddef>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace songsweep {

/// An event that a worker can post: a value that names its worker, and whose type says by a free function
/// `isCount` which events merely count steps.
template <typename Event>
concept Postable = std::copyable<Event> && requires(const Event& event) {
    { event.sender } -> std::convertible_to<const Operation*>;
    { isCount(event) } -> std::same_as<bool>;
};

/// Carries worker events ("SingleProcFinish") to the main thread, one by one, in the order posted.
///
///     NotificationCenter<WorkerEvent> center;
///     center.setObserver([](const WorkerEvent& event) { … });  // on the main thread
///     center.post({EventName::addFinish, {}, this});           // on the worker's
///
/// A worker that posts waits until its event was handled. Counts, which come by the step, do not wait: they
/// ride along with the next event, or alone after 50 ms at most, and are still handled as events of their
/// own, in their place. How the threads pass a batch is the HandOff's; an event costs some 2 microseconds.
/// Make it, and set its observer, on the main thread, after the QCoreApplication. Its end releases whoever
/// waits, see close().
template <typename Event>
class NotificationCenter final : public EventCenter {
  public:
    static_assert(Postable<Event>);
    using Observer = std::function<void(const Event&)>;

    NotificationCenter()
        : m_handOff({[this] { handle(m_batch); }, [this] { handle(takeCounts()); }}) {
        m_counts.reserve(mostCounts);
        m_batch.reserve(mostCounts + 1);
    }

    /// Main thread. The observer is called on the main thread alone.
    void setObserver(Observer observer) { m_observer = std::move(observer); }

    /// Any thread. Returns when the event was handled; at once for a count, and after close(). On the main
    /// thread the observer is called directly.
    void post(const Event& event) {
        const HandOff::Presence inside(m_handOff);
        if (m_handOff.isClosed()) return;
        if (m_handOff.isMainThread()) {
            handle(event);
        } else if (isCount(event)) {
            postCount(event);
        } else {
            postBatch(&event);
        }
    }

    bool flush() override {
        const HandOff::Presence inside(m_handOff);
        return !m_handOff.isMainThread() && postBatch(nullptr);
    }
    const Operation* handling() const override { return m_handling; }
    void close() override { m_handOff.close(); }

  private:
    static constexpr std::size_t mostCounts = 4096;

    void postCount(const Event& event) {
        bool isFull = false;
        {
            const std::lock_guard lock(m_countsLock);
            m_counts.push_back(event);
            isFull = m_counts.size() >= mostCounts;
        }
        if (isFull) {
            postBatch(nullptr);
        } else {
            m_handOff.askForCounts();
        }
    }

    bool postBatch(const Event* last) {
        const std::lock_guard lock(m_posting);
        if (m_handOff.isClosed()) return false;
        takeCounts(m_batch);
        if (last != nullptr) m_batch.push_back(*last);
        return m_handOff.pass();
    }

    void takeCounts(std::vector<Event>& into) {
        into.clear();
        const std::lock_guard lock(m_countsLock);
        into.swap(m_counts);
    }
    std::vector<Event> takeCounts() {
        const std::lock_guard lock(m_countsLock);
        return std::exchange(m_counts, {});
    }

    void handle(const std::vector<Event>& events) {
        for (const auto& event : events) {
            if (m_handOff.isClosed()) return;
            handle(event);
        }
    }
    void handle(const Event& event) {
        if (!m_observer) return;
        const Scoped<const Operation*> handling(m_handling, event.sender);
        m_observer(event);
    }

    Observer m_observer;
    const Operation* m_handling = nullptr;

    std::mutex m_posting; ///< held by a poster from building its batch until that was handled
    std::vector<Event> m_batch;

    std::mutex m_countsLock;
    std::vector<Event> m_counts; ///< posted, and waiting to ride along

    HandOff m_handOff; ///< last: its end waits until no poster uses anything above
};

} // namespace songsweep
