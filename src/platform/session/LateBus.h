// A bus connection made without blocking.
#pragma once

#include "platform/session/BusGreeting.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

class QSocketNotifier;

namespace vantle {

/// Connects once the bus responds, however long that takes. A bus that is missing at construction
/// is never connected. Main thread.
class LateBus final : public QObject {
    Q_OBJECT

public:
    /// `address` has the form of $DBUS_SYSTEM_BUS_ADDRESS.
    explicit LateBus(const QByteArray& address);
    /// Closes the connection.
    ~LateBus() override;

    /// The addresses of the session bus and the system bus.
    [[nodiscard]] static QByteArray sessionAddress();
    [[nodiscard]] static QByteArray systemAddress();

Q_SIGNALS:
    /// The bus is connected. Emitted once, from the event loop.
    void connected(const QDBusConnection& bus);

private:
    void takeAnswer();
    void open();

    const QByteArray m_address;
    const QString m_name; ///< of the connection, within this process
    std::unique_ptr<BusGreeting> m_greeting;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace vantle
