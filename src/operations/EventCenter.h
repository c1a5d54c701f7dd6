// SPDX-License-Identifier: MIT
#pragma once

namespace songsweep {

class Operation;

/// What the queue asks of a NotificationCenter, whatever type of event that carries.
class EventCenter {
  public:
    EventCenter() = default;
    EventCenter(const EventCenter&) = delete;
    EventCenter& operator=(const EventCenter&) = delete;
    virtual ~EventCenter() = default;

    /// Any thread but the main one. Returns when every count that this thread posted was handled; false when
    /// the centre was closed before. The queue calls it before it lets go of an operation.
    virtual bool flush() = 0;

    /// The operation whose event is being handled now; nothing outside of a handler. Main thread.
    virtual const Operation* handling() const = 0;

    /// Main thread. From now on events are dropped and nobody waits: the application is quitting.
    virtual void close() = 0;
};

} // namespace songsweep
