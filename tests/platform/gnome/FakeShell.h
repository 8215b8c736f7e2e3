// GNOME's shell with its extensions on the bus of a test.
#pragma once

#include "support/Buses.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <functional>

namespace vantle::tests {

class FakeShellVersion final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell")
    Q_PROPERTY(QString ShellVersion MEMBER version)

public:
    explicit FakeShellVersion(QObject* object) : QDBusAbstractAdaptor(object) {}
    QString version = QStringLiteral("43.9");
};

/// Knows one extension, as far as it has found it.
class FakeShellExtensions final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Shell.Extensions")

public:
    explicit FakeShellExtensions(QObject* object) : QDBusAbstractAdaptor(object) {}

    QString uuid;     ///< empty: none was found
    double state = 6; ///< found, and never on
    bool takes = true;
    int enabled = 0;
    std::function<void()> onEnable = [] {};

public Q_SLOTS:
    QVariantMap GetExtensionInfo(const QString& asked) const {
        if (asked != uuid) return {};
        return {{QStringLiteral("uuid"), uuid}, {QStringLiteral("state"), state}};
    }
    bool EnableExtension(const QString& asked) {
        if (asked != uuid || !takes) return false;
        ++enabled;
        onEnable();
        return true;
    }
};

class FakeShell {
    QObject m_object;

public:
    /// Belong to the object.
    FakeShellVersion* const version = new FakeShellVersion(&m_object);
    FakeShellExtensions* const extensions = new FakeShellExtensions(&m_object);

    void appear() {
        m_client.bus().registerObject(kPath, &m_object, QDBusConnection::ExportAdaptors);
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.gnome.Shell")));
    }
    void disappear() { m_client.leave(); }

    void setState(double state) {
        extensions->state = state;
        auto signal =
            QDBusMessage::createSignal(kPath, QStringLiteral("org.gnome.Shell.Extensions"),
                                       QStringLiteral("ExtensionStateChanged"));
        signal << extensions->uuid << QVariantMap{{QStringLiteral("state"), state}};
        m_client.bus().send(signal);
    }

    /// The extension calls the program.
    void report(const QString& program, const QString& id) {
        call(program, QStringLiteral("report"), {id});
    }
    void end(const QString& program) { call(program, QStringLiteral("end"), {}); }

private:
    void call(const QString& program, const QString& method, const QVariantList& arguments) {
        auto call = QDBusMessage::createMethodCall(
            program, QStringLiteral("/local/vantle/Vantle/ShellFrontmost"),
            QStringLiteral("local.vantle.Frontmost"), method);
        call.setArguments(arguments);
        m_client.bus().send(call);
    }

    const QString kPath = QStringLiteral("/org/gnome/Shell");
    BusClient m_client;
};

} // namespace vantle::tests
