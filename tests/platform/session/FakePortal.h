// The settings portal, as the code under test meets it.
#pragma once

#include "support/Buses.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QMap>
#include <QObject>

#include <gtest/gtest.h>

namespace vantle::tests {

class FakePortal final : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    QMap<QString, QVariant> values; ///< by "namespace key"
    bool silent = false;            ///< never answers
    int asked = 0;

    void appear() {
        m_client.bus().registerObject(QStringLiteral("/org/freedesktop/portal/desktop"),
                                      QStringLiteral("org.freedesktop.portal.Settings"), this,
                                      QDBusConnection::ExportAllInvokables);
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.portal.Desktop")));
    }

    /// Changes a value and tells of it.
    void change(const QString& space, const QString& key, const QVariant& value) {
        values[space + QLatin1Char(' ') + key] = value;
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                                 QStringLiteral("org.freedesktop.portal.Settings"),
                                                 QStringLiteral("SettingChanged"));
        signal << space << key << QVariant::fromValue(QDBusVariant(value));
        m_client.bus().send(signal);
    }

    /// Answers with the value in a variant more than the signature says, as the real one does.
    Q_INVOKABLE QDBusVariant Read(const QString& space, const QString& key) {
        ++asked;
        if (silent) {
            setDelayedReply(true);
            return {};
        }
        const QString name = space + QLatin1Char(' ') + key;
        if (values.contains(name))
            return QDBusVariant(QVariant::fromValue(QDBusVariant(values[name])));
        sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"),
                       QStringLiteral("Requested setting not found"));
        return {};
    }

private:
    BusClient m_client;
};

} // namespace vantle::tests
