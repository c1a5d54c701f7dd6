// SPDX-License-Identifier: MIT
#include "platform/linux/SessionBus.h"

namespace songsweep {

void SessionBus::Close::operator()(GDBusConnection* connection) const {
    g_dbus_connection_close_sync(connection, nullptr, nullptr);
    g_object_unref(connection);
}

Result<SessionBus> SessionBus::open() {
    GError* error = nullptr;
    const gio::Owned<gchar> address(g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SESSION, nullptr, &error));
    if (!address) return gio::errorFrom(error);
    constexpr auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    GDBusConnection* connection =
        g_dbus_connection_new_for_address_sync(address.get(), flags, nullptr, nullptr, &error);
    if (connection == nullptr) return gio::errorFrom(error);
    return SessionBus(connection);
}

Result<gio::Owned<GVariant>> SessionBus::call(const Method& method, GVariant* arguments,
                                              std::chrono::milliseconds limit) const {
    GError* error = nullptr;
    gio::Owned<GVariant> answer(g_dbus_connection_call_sync(
        m_connection.get(), method.service.c_str(), method.path, method.interface, method.name, arguments,
        nullptr, G_DBUS_CALL_FLAGS_NONE, static_cast<gint>(limit.count()), nullptr, &error));
    if (!answer) return gio::errorFrom(error);
    return answer;
}

} // namespace songsweep
