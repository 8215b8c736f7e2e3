// A service that tells what keeps the session awake: GNOME's, KDE's or the login manager.
#pragma once

#include "platform/session/DesktopIdleInhibition.h"
#include "support/AnsweringObject.h"
#include "support/Buses.h"

#include <QDBusError>
#include <QDBusMessage>

#include <memory>
#include <unistd.h>

namespace vantle::tests {

/// What differs between the services.
struct InhibitorForm {
    const char* name;
    const char* path;
    const char* interface;
    const char* method; ///< that it is asked by
    QVariant (*answer)(const QDBusMessage& call, bool held);
    const char* signal; ///< that tells of a change
    const char* signalInterface;
};

inline const InhibitorForm kGnomeInhibitors{
    "org.gnome.SessionManager",
    "/org/gnome/SessionManager",
    "org.gnome.SessionManager",
    "IsInhibited",
    [](const QDBusMessage& call, bool held) {
        // A program that logs out and one that switches users hold something else.
        const uint inhibited = held ? 11 : 3;
        return QVariant((inhibited & call.arguments().value(0).toUInt()) != 0);
    },
    "InhibitorAdded",
    "org.gnome.SessionManager"};
inline const InhibitorForm kKdeInhibitors{
    "org.kde.Solid.PowerManagement.PolicyAgent",
    "/org/kde/Solid/PowerManagement/PolicyAgent",
    "org.kde.Solid.PowerManagement.PolicyAgent",
    "HasInhibition",
    [](const QDBusMessage& call, bool held) {
        // A download holds off suspension.
        const uint inhibited = held ? 5 : 1;
        return QVariant((inhibited & call.arguments().value(0).toUInt()) != 0);
    },
    "InhibitionsChanged",
    "org.kde.Solid.PowerManagement.PolicyAgent"};
inline const InhibitorForm kLoginInhibitors{
    "org.freedesktop.login1",
    "/org/freedesktop/login1",
    "org.freedesktop.login1.Manager",
    "ListInhibitors",
    [](const QDBusMessage&, bool held) {
        const QString idle = QStringLiteral("sleep:idle");
        const QString block = QStringLiteral("block");
        // Of another user, of another kind, and one that only delays.
        QList<LoginInhibitor> all{{idle, {}, {}, block, ::getuid() + 1, 1},
                                  {QStringLiteral("sleep"), {}, {}, block, ::getuid(), 2},
                                  {idle, {}, {}, QStringLiteral("delay"), ::getuid(), 3}};
        if (held) all.append({idle, {}, {}, block, ::getuid(), 4});
        return QVariant::fromValue(all);
    },
    "PropertiesChanged",
    "org.freedesktop.DBus.Properties"};

class FakeInhibitors {
public:
    explicit FakeInhibitors(const InhibitorForm& form) : m_form(form) {}

    /// The service comes, or goes.
    void appear() {
        m_client = std::make_unique<BusClient>();
        m_object = std::make_unique<AnsweringObject>(
            m_client->bus(), QString::fromLatin1(m_form.path), [this](const QDBusMessage& call) {
                if (call.member() != QLatin1String(m_form.method)) return;
                ++questions;
                if (isDumb)
                    m_client->bus().send(call.createErrorReply(QDBusError::UnknownMethod, {}));
                else
                    m_client->bus().send(call.createReply(m_form.answer(call, m_held)));
            });
        (void)m_client->takeName(QString::fromLatin1(m_form.name));
    }
    void leave() {
        m_object.reset();
        m_client.reset();
    }

    void hold(bool held) {
        m_held = held;
        if (!m_client) return;
        auto signal = QDBusMessage::createSignal(QString::fromLatin1(m_form.path),
                                                 QString::fromLatin1(m_form.signalInterface),
                                                 QString::fromLatin1(m_form.signal));
        signal << QString::fromLatin1(m_form.interface) << QVariantMap() << QStringList();
        m_client->bus().send(signal);
    }

    int questions = 0;
    bool isDumb = false; ///< answers by errors

private:
    const InhibitorForm& m_form;
    bool m_held = false;
    std::unique_ptr<BusClient> m_client;
    std::unique_ptr<AnsweringObject> m_object;
};

} // namespace vantle::tests
