#include "platform/session/PortalSettings.h"

#include "platform/session/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusVariant>

#include <utility>

namespace vantle {

namespace {

const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// Unwraps nested variants: Read wraps the value twice, a signal once.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

PortalSettings::PortalSettings(const QDBusConnection& session, QList<Key> keys)
    : m_portal(session, portal::kService)
    , m_keys(std::move(keys)) {
    connect(&m_portal, &FollowedService::came, this, [this] {
        for (const Key& key : m_keys)
            ask(key);
    });
    m_portal.hear(portal::kPath, kSettingsInterface, QStringLiteral("SettingChanged"),
                  [this](const QDBusMessage& signal) { takeChange(signal.arguments()); });
    m_portal.start();
}

void PortalSettings::ask(const Key& key) {
    m_portal.ask<QDBusVariant>(
        m_portal.call(portal::kPath, kSettingsInterface, QStringLiteral("Read"))
            << key.space << key.name,
        [this, key](const QDBusVariant& value) { Q_EMIT told(key, unwrapped(value.variant())); });
}

void PortalSettings::takeChange(const QVariantList& change) {
    if (change.size() < 3) return;
    const Key key{change[0].toString(), change[1].toString()};
    if (m_keys.contains(key)) Q_EMIT told(key, unwrapped(change[2]));
}

} // namespace vantle
