// A connection to a message bus that nobody waits for.
#pragma once

#include "platform/session/BusGreeting.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>

class QSocketNotifier;

namespace vantle {

/// Connects once the bus has shown that it answers, however long that takes. A bus that is not
/// there when this is made is never connected to. Main thread.
class LateBus final : public QObject {
    Q_OBJECT

public:
    /// An address as in $DBUS_SYSTEM_BUS_ADDRESS.
    explicit LateBus(const QByteArray& address);
    /// Closes the connection.
    ~LateBus() override;

    /// Where the session's bus is, and the system's.
    [[nodiscard]] static QByteArray sessionAddress();
    [[nodiscard]] static QByteArray systemAddress();

Q_SIGNALS:
    /// The bus can be used. Emitted once, from the event loop, and never without a connection.
    void connected(const QDBusConnection& bus);

private:
    void takeAnswer();
    void open();

    const QByteArray m_address;
    const QString m_name; ///< of the connection within this program
    std::unique_ptr<BusGreeting> m_greeting;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace vantle
