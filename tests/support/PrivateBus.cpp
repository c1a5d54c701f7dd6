// SPDX-License-Identifier: MIT
#include "support/PrivateBus.h"

#include <QStringList>

#include <utility>

namespace songsweep::test {

namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";

} // namespace

PrivateBus::PrivateBus()
    : m_formerAddress(qgetenv(addressVariable)) {
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                    QStringLiteral("--print-address")});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead()) {
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    qputenv(addressVariable, m_address.toUtf8());
}

PrivateBus::~PrivateBus() {
    if (m_formerAddress.isEmpty())
        qunsetenv(addressVariable);
    else
        qputenv(addressVariable, m_formerAddress);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

/// Handles every call below its path, in the service's thread.
class BusService::Object : public QDBusVirtualObject {
  public:
    explicit Object(Answer answer)
        : m_answer(std::move(answer)) {}

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        {
            const std::lock_guard lock(m_mutex);
            m_calls.push_back(call);
        }
        const std::optional<QList<QVariant>> answer = m_answer(call);
        connection.send(
            answer ? call.createReply(*answer)
                   : call.createErrorReply(QDBusError::NotSupported, QStringLiteral("No such thing")));
        return true;
    }

    std::vector<QList<QVariant>> callsOf(const QString& member) const {
        const std::lock_guard lock(m_mutex);
        std::vector<QList<QVariant>> arguments;
        for (const QDBusMessage& call : m_calls)
            if (call.member() == member) arguments.push_back(call.arguments());
        return arguments;
    }

  private:
    Answer m_answer;
    mutable std::mutex m_mutex;
    std::vector<QDBusMessage> m_calls;
};

BusService::BusService(const PrivateBus& bus, const QString& name, const QString& path, Answer answer)
    : m_name(name)
    , m_connection(QDBusConnection::connectToBus(bus.address(), name))
    , m_object(std::make_unique<Object>(std::move(answer))) {
    m_thread.start();
    m_object->moveToThread(&m_thread);
    m_connection.registerVirtualObject(path, m_object.get());
    m_connection.registerService(name);
}

BusService::~BusService() {
    m_connection.unregisterService(m_name);
    QDBusConnection::disconnectFromBus(m_name);
    m_thread.quit();
    m_thread.wait();
}

std::vector<QList<QVariant>> BusService::callsOf(const QString& member) const {
    return m_object->callsOf(member);
}

} // namespace songsweep::test
