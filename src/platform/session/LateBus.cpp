#include "platform/session/LateBus.h"

#include <QSocketNotifier>
#include <QUuid>

namespace vantle {

LateBus::LateBus(const QByteArray& address)
    : m_address(address)
    , m_name(QUuid::createUuid().toString())
    , m_greeting(std::make_unique<BusGreeting>(address)) {
    if (m_greeting->descriptor() >= 0) {
        m_notifier =
            std::make_unique<QSocketNotifier>(m_greeting->descriptor(), QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &LateBus::takeAnswer);
    }
    // Other transports lead to another machine or program. They are not used: connecting would
    // block.
}

LateBus::~LateBus() { QDBusConnection::disconnectFromBus(m_name); }

QByteArray LateBus::sessionAddress() {
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    return address.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : address;
}

QByteArray LateBus::systemAddress() {
    const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    return address.isEmpty() ? QByteArray("unix:path=/run/dbus/system_bus_socket") : address;
}

void LateBus::takeAnswer() {
    const BusGreeting::Answer answer = m_greeting->answer();
    if (answer == BusGreeting::Answer::Waiting) return;
    m_notifier->setEnabled(false);
    // Deferred, since this runs inside the notifier's own signal.
    QMetaObject::invokeMethod(
        this, [this] { m_notifier.reset(); }, Qt::QueuedConnection);
    if (answer == BusGreeting::Answer::Answers) open();
}

void LateBus::open() {
    const auto bus = QDBusConnection::connectToBus(QString::fromLatin1(m_address), m_name);
    if (bus.isConnected()) Q_EMIT connected(bus);
}

} // namespace vantle
