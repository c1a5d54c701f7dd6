// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Result.h"
#include "platform/linux/Gio.h"

#include <chrono>
#include <string>

namespace songsweep {

/// A connection of its own to the D-Bus session bus, for a few calls.
///
/// GIO's calls need no running event loop, so that workers can make them; the connection that a whole process
/// shares would end the program together with the bus. Opening one costs about a millisecond. Each call waits
/// for its answer, at most as long as told. For one thread.
class SessionBus {
  public:
    static Result<SessionBus> open();

    /// What is called: a method of an interface of an object of a service.
    struct Method {
        std::string service;
        const char* path;
        const char* interface;
        const char* name;
    };

    /// Calls with the arguments (a tuple, floating or null) and gives the answer, a tuple.
    Result<gio::Owned<GVariant>> call(const Method& method, GVariant* arguments,
                                      std::chrono::milliseconds limit) const;

  private:
    explicit SessionBus(GDBusConnection* connection)
        : m_connection(connection) {}

    struct Close {
        void operator()(GDBusConnection* connection) const;
    };
    std::unique_ptr<GDBusConnection, Close> m_connection;
};

} // namespace songsweep
