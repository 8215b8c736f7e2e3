#include "platform/gnome/MutterScreenPower.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QVariantMap>

namespace vantle {

namespace {

const QString kDisplays = QStringLiteral("org.gnome.Mutter.DisplayConfig");
const QString kDisplaysPath = QStringLiteral("/org/gnome/Mutter/DisplayConfig");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kMode = QStringLiteral("PowerSaveMode");

constexpr unsigned kSavesPower = 0;

} // namespace

MutterScreenPower::MutterScreenPower(const QDBusConnection& session) : m_session(session) {
    if (!m_session.isConnected()) return;
    m_session.connect(kDisplays, kDisplaysPath, kProperties, QStringLiteral("PropertiesChanged"),
                      QStringList{kDisplays}, QString(), this, SLOT(takeProperties(QDBusMessage)));
    auto* watcher = new QDBusServiceWatcher(kDisplays, m_session,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                setCause(kSavesPower, false); // what the old one said died with it
                if (!newOwner.isEmpty()) ask();
            });
    ask();
}

void MutterScreenPower::ask() {
    auto call = QDBusMessage::createMethodCall(kDisplays, kDisplaysPath, kProperties,
                                               QStringLiteral("Get"));
    call << kDisplays << kMode;
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(m_session.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) take(reply.value().variant());
    });
}

void MutterScreenPower::takeProperties(const QDBusMessage& signal) {
    const QVariantList arguments = signal.arguments();
    if (arguments.size() < 3) return;
    const auto changed = qdbus_cast<QVariantMap>(arguments[1]);
    if (changed.contains(kMode))
        take(changed.value(kMode));
    else if (arguments[2].toStringList().contains(kMode))
        ask();
}

void MutterScreenPower::take(const QVariant& mode) {
    // 0 is on and -1 unknown; 1 to 3 are the ways to save power.
    setCause(kSavesPower, mode.toInt() > 0);
}

} // namespace vantle
