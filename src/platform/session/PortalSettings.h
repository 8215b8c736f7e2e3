// A few keys of the desktop's settings portal.
#pragma once

#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

namespace vantle {

/// Reads keys of org.freedesktop.portal.Settings, follows changes, and reads again when the portal
/// appears. Does not block; the first values come shortly after construction. Without a bus or
/// portal there are no values. Main thread.
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
    /// A key has that value, possibly unchanged.
    void told(const vantle::PortalSettings::Key& key, const QVariant& value);

private:
    void ask(const Key& key);
    void takeChange(const QVariantList& change);

    FollowedService m_portal;
    const QList<Key> m_keys;
};

} // namespace vantle
