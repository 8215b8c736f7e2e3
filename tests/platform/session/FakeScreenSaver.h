// A screen saver of the session, as the code under test meets it.
#pragma once

#include "support/Buses.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QVariant>

#include <gtest/gtest.h>

namespace vantle::tests {

class FakeScreenSaver final : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    FakeScreenSaver(const QString& name, const QString& path) : m_name(name), m_path(path) {}

    bool active = false;
    bool silent = false; ///< never answers
    int asked = 0;

    void appear() {
        m_client.bus().registerObject(m_path, m_name, this, QDBusConnection::ExportAllInvokables);
        ASSERT_TRUE(m_client.takeName(m_name));
    }
    void disappear() { m_client.leave(); }

    void change(bool to, const QString& path = {}) {
        active = to;
        tell(to, path);
    }
    /// Signals a change to a value of any type.
    void tell(const QVariant& to, const QString& path = {}) {
        auto signal = QDBusMessage::createSignal(path.isEmpty() ? m_path : path, m_name,
                                                 QStringLiteral("ActiveChanged"));
        signal << to;
        m_client.bus().send(signal);
    }

    Q_INVOKABLE bool GetActive() {
        ++asked;
        if (silent) setDelayedReply(true);
        return active;
    }

private:
    QString m_name;
    QString m_path;
    BusClient m_client;
};

} // namespace vantle::tests
