// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QList>
#include <QProcess>
#include <QString>
#include <QThread>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace songsweep::test {

/// A D-Bus session bus of a test's own, which is the process's session bus as long as this lives.
class PrivateBus {
  public:
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    /// Empty where the bus could not be started.
    QString address() const { return m_address; }

  private:
    QProcess m_daemon;
    QString m_address;
    QByteArray m_formerAddress;
};

/// A service on a private bus that keeps the calls it gets and answers as a test tells it.
///
/// It answers from a thread of its own, as another program would, so that a test may wait for the answer.
class BusService {
  public:
    /// What to answer to a call; nothing is an error reply.
    using Answer = std::function<std::optional<QList<QVariant>>(const QDBusMessage& call)>;

    BusService(const PrivateBus& bus, const QString& name, const QString& path, Answer answer);
    BusService(const BusService&) = delete;
    BusService& operator=(const BusService&) = delete;
    ~BusService();

    /// The calls to `member` so far, each with its arguments.
    std::vector<QList<QVariant>> callsOf(const QString& member) const;

  private:
    class Object;

    QString m_name;
    QThread m_thread;
    QDBusConnection m_connection;
    std::unique_ptr<Object> m_object;
};

} // namespace songsweep::test
