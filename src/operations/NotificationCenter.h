// SPDX-License-Identifier: MIT
#pragma once

#include "operations/WorkerEvent.h"

#include <functional>
#include <memory>

namespace songsweep {

/// Carries worker events ("SingleProcFinish") to the main thread, one by one, in the order posted.
///
/// A worker that posts waits until its event was handled. The two counts that come by the step, "progress"
/// and "deleteAddCount", do not wait: they ride along with the next event, or alone after 50 ms at most, and
/// are still handled as events of their own, in their place. The hand-off is one atomic phase; the main
/// thread's loop is woken only if it sleeps. Make it, and set its observer, on the main thread, after the
/// QCoreApplication.
class NotificationCenter {
  public:
    using Observer = std::function<void(const WorkerEvent&)>;

    NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;
    ~NotificationCenter(); ///< releases whoever waits, see close()

    /// Main thread. The observer is called on the main thread alone.
    void setObserver(Observer observer);

    /// Any thread. Returns when the event was handled; at once for a count, and after close(). On the main
    /// thread the observer is called directly.
    void post(const WorkerEvent& event);

    /// Any thread but the main one. Returns when every count that this thread posted was handled; false when
    /// the centre was closed before. The queue calls it before it lets go of an operation.
    bool flush();

    /// The operation whose event is being handled now; nothing outside of a handler. Main thread.
    const Operation* handling() const;

    /// Main thread. From now on events are dropped and nobody waits: the application is quitting.
    void close();

  private:
    class HandOff;
    std::unique_ptr<HandOff> m_handOff;
};

} // namespace songsweep
