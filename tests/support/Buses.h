// Connections to the private bus of a test: one for the code under test, one for each stand-in of
// another program.
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QString>
#include <QUuid>

namespace vantle::tests {

/// A connection of its own to the bus, closed with this object: then the names that it had are
/// free, as when a program ends.
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

    /// Ends the connection.
    void leave() {
        m_bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(m_name);
    }

private:
    QString m_name;
    QDBusConnection m_bus;
};

/// A connection that never was one, as on a desktop without a bus.
inline QDBusConnection noBus() { return QDBusConnection(QStringLiteral("there is none")); }

} // namespace vantle::tests
