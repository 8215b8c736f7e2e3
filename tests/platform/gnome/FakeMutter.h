// GNOME's shell on the bus of a test, as the code under test meets it.
#pragma once

#include "support/Buses.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <utility>

namespace vantle::tests {

/// The object of the idle monitor.
class FakeIdleMonitor final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Mutter.IdleMonitor")

public:
    uint idleWatch = 0, inputWatch = 0, nextId = 7;
    qulonglong idleTime = 60000;

    Q_INVOKABLE qulonglong GetIdletime() const { return idleTime; }
    Q_INVOKABLE uint AddIdleWatch(qulonglong interval) {
        EXPECT_EQ(interval, 1000U);
        return idleWatch = nextId++;
    }
    Q_INVOKABLE uint AddUserActiveWatch() { return inputWatch = nextId++; }
};

/// The object of the displays.
class FakeDisplayConfig final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Mutter.DisplayConfig")
    Q_PROPERTY(int PowerSaveMode MEMBER mode)

public:
    int mode = 0;
};

class FakeMutter {
public:
    void appear() {
        auto bus = m_client.bus();
        bus.registerObject(kPath, &monitor, QDBusConnection::ExportAllInvokables);
        bus.registerObject(kDisplays, &displays, QDBusConnection::ExportAllProperties);
        ASSERT_TRUE(m_client.takeName(kName));
        ASSERT_TRUE(m_client.takeName(kDisplayName));
    }
    void disappear() { m_client.leave(); }

    /// A second without input has passed; an input.
    void second() { fire(monitor.idleWatch); }
    void touch() {
        if (const uint watch = std::exchange(monitor.inputWatch, 0)) fire(watch);
    }
    void fire(uint watch) {
        auto signal = QDBusMessage::createSignal(kPath, kName, QStringLiteral("WatchFired"));
        signal << watch;
        m_client.bus().send(signal);
    }

    void setPowerSaveMode(int mode) {
        displays.mode = mode;
        auto signal =
            QDBusMessage::createSignal(kDisplays, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        signal << kDisplayName << QVariantMap{{QStringLiteral("PowerSaveMode"), mode}}
               << QStringList();
        m_client.bus().send(signal);
    }

    FakeIdleMonitor monitor;
    FakeDisplayConfig displays;

private:
    const QString kName = QStringLiteral("org.gnome.Mutter.IdleMonitor");
    const QString kPath = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");
    const QString kDisplayName = QStringLiteral("org.gnome.Mutter.DisplayConfig");
    const QString kDisplays = QStringLiteral("/org/gnome/Mutter/DisplayConfig");
    BusClient m_client;
};

} // namespace vantle::tests
