// Connections to the private bus of a test.
//
// One for the code under test, and one for each stand-in of another program.
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QString>
#include <QUuid>

namespace vantle::tests {

/// A bus connection that closes with this object, which frees its names as the end of a program
/// does.
class BusClient {
public:
    BusClient()
        : m_name(QUuid::createUuid().toString())
        , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_name)) {}
    ~BusClient() { leave(); }
    BusClient(const BusClient&) = delete;
    BusClient& operator=(const BusClient&) = delete;

    [[nodiscard]] QDBusConnection& bus() { return m_bus; }

    [[nodiscard]] bool takeName(const QString& name) {
        return m_bus.interface()->registerService(name) ==
               QDBusConnectionInterface::ServiceRegistered;
    }

    /// Closes the connection.
    void leave() {
        m_bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(m_name);
    }

private:
    QString m_name;
    QDBusConnection m_bus;
};

/// Returns an invalid connection, as on a desktop without a bus.
inline QDBusConnection noBus() { return QDBusConnection(QStringLiteral("there is none")); }

} // namespace vantle::tests
