#include "platform/bus/FollowedService.h"

#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QLatin1String>

namespace vantle {

namespace {

const QString kBus = QStringLiteral("org.freedesktop.DBus");
const QString kBusPath = QStringLiteral("/org/freedesktop/DBus");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

QDBusMessage callToBus(const QString& method) {
    return QDBusMessage::createMethodCall(kBus, kBusPath, kBus, method);
}

} // namespace

FollowedService::FollowedService(const QDBusConnection& bus, QString name, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
    , m_name(std::move(name)) {
    if (!m_bus.isConnected()) return;
    auto* watcher =
        new QDBusServiceWatcher(m_name, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) { setOwner(owner); });
    askForOwner();
}

void FollowedService::askForOwner() {
    auto question = callToBus(QStringLiteral("GetNameOwner"));
    question << m_name;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QString> owner = *answer;
        // A change reported earlier is at least as recent.
        if (m_ownersSoFar == 0) setOwner(owner.isValid() ? owner.value() : QString());
    });
}

void FollowedService::setOwner(const QString& owner) {
    ++m_ownersSoFar;
    const bool wasThere = isThere();
    m_owner = owner;
    if (wasThere || owner.isEmpty()) Q_EMIT gone();
    if (isThere()) Q_EMIT came();
}

void FollowedService::start() {
    if (!m_bus.isConnected()) return;
    auto call = callToBus(QStringLiteral("StartServiceByName"));
    call << m_name << 0U;
    m_bus.asyncCall(call);
}

void FollowedService::hear(const QString& path, const QString& interface, const QString& member,
                           std::function<void(const QDBusMessage&)> take,
                           const QString& firstArgument) {
    if (!m_bus.isConnected()) return;
    auto* heard = new HeardSignal(
        [this, take = std::move(take)](const QDBusMessage& signal) {
            if (isThere() && signal.service() == m_owner) take(signal);
        },
        this);
    // Without a sender filter: for a well-known name the library would block until the bus reports
    // its owner.
    const QStringList arguments =
        firstArgument.isEmpty() ? QStringList() : QStringList{firstArgument};
    m_bus.connect(QString(), path, interface, member, arguments, QString(), heard,
                  SLOT(pass(QDBusMessage)));
}

QDBusMessage FollowedService::call(const QString& path, const QString& interface,
                                   const QString& method) const {
    auto call = QDBusMessage::createMethodCall(m_name, path, interface, method);
    call.setAutoStartService(false);
    return call;
}

QDBusMessage FollowedService::get(const QString& path, const QString& interface,
                                  const QString& property) const {
    return call(path, kProperties, QStringLiteral("Get")) << interface << property;
}

void FollowedService::send(const QDBusMessage& call,
                           std::function<void(const QDBusPendingCall&)> take) {
    if (!m_bus.isConnected()) return;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, take = std::move(take), asked = m_ownersSoFar] {
                answer->deleteLater();
                if (asked == m_ownersSoFar) take(*answer);
            });
}

} // namespace vantle
