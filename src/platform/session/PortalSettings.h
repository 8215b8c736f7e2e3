// What the desktop's settings portal says of a few keys.
#pragma once

#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

namespace vantle {

/// Asks org.freedesktop.portal.Settings for its keys, follows their changes, and asks again when
/// the portal comes or comes back. Main thread; nothing blocks, the answers come a moment after the
/// construction. A missing bus or portal is no failure: then nothing is told.
class PortalSettings final : public QObject {
    Q_OBJECT

public:
    struct Key {
        QString space;
        QString name;

        friend bool operator==(const Key&, const Key&) = default;
    };

    PortalSettings(const QDBusConnection& session, QList<Key> keys);

Q_SIGNALS:
    /// One of the keys has that value, which need not be another one than before.
    void told(const vantle::PortalSettings::Key& key, const QVariant& value);

private:
    void ask(const Key& key);
    void takeChange(const QVariantList& change);

    FollowedService m_portal;
    const QList<Key> m_keys;
};

} // namespace vantle
