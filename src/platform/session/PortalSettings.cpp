#include "platform/session/PortalSettings.h"

#include "platform/session/AnswerLimit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

namespace vantle {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// The value inside of however many variants: Read wraps it twice, a signal once.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

PortalSettings::PortalSettings(const QDBusConnection& session, QList<Key> keys)
    : m_session(session)
    , m_keys(std::move(keys)) {
    if (!m_session.isConnected()) return;
    m_session.connect(kService, kPortalPath, kInterface, QStringLiteral("SettingChanged"), this,
                      SLOT(takeChange(QString, QString, QDBusVariant)));
    auto* watcher = new QDBusServiceWatcher(kService, m_session,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { ask(); });
    ask();
}

void PortalSettings::ask() {
    for (const Key& key : m_keys)
        ask(key);
}

void PortalSettings::ask(const Key& key) {
    auto call =
        QDBusMessage::createMethodCall(kService, kPortalPath, kInterface, QStringLiteral("Read"));
    call << key.space << key.name;
    auto* answer = new QDBusPendingCallWatcher(m_session.asyncCall(call, kAnswerLimitMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, key] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) Q_EMIT told(key, unwrapped(reply.value().variant()));
    });
}

void PortalSettings::takeChange(const QString& space, const QString& name,
                                const QDBusVariant& value) {
    const Key key{space, name};
    if (m_keys.contains(key)) Q_EMIT told(key, unwrapped(value.variant()));
}

} // namespace vantle
