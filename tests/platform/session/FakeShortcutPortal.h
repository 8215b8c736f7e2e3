// The portal for shortcuts on the bus of a test, as the code under test meets it.
#pragma once

#include "platform/session/PortalShortcut.h"
#include "support/Buses.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace vantle::tests {

/// Asks the user as the desktop's dialog does: the test answers for both.
class FakeShortcutPortal final : public QDBusVirtualObject {
public:
    FakeShortcutPortal() {
        qDBusRegisterMetaType<PortalShortcut>();
        qDBusRegisterMetaType<PortalShortcuts>();
    }
    void appear() {
        m_client.bus().registerVirtualObject(kPath, this);
        ASSERT_TRUE(m_client.takeName(kName));
    }
    void disappear() { m_client.bus().interface()->unregisterService(kName); }

    bool hasShortcuts = true;         ///< false as on a desktop whose portal lacks this part
    bool hasRegistry = true;          ///< false as before 1.20
    bool asksNothing = false;         ///< binds at once, as for who was granted the keys before
    bool refuses = false;             ///< answers by errors
    QMap<QString, QStringList> calls; ///< by the connection they came from, in their order
    /// Of the session that it gives out.
    QString handle = QStringLiteral("/org/freedesktop/portal/desktop/session/1");

    [[nodiscard]] bool isAsking() const { return !m_question.isEmpty(); }
    [[nodiscard]] const PortalShortcuts& wanted() const { return m_wanted; }
    [[nodiscard]] bool isBound() const { return m_isBound; }

    /// What the user does in the dialog.
    void grant(const QString& keys = QStringLiteral("Press <Alt><Super>b")) {
        m_isBound = true;
        // The code that was seen when all went well.
        respond(m_question, 2, {{QStringLiteral("shortcuts"), bound(keys)}});
        m_question.clear();
    }
    void decline() {
        respond(m_question, 1,
                {{QStringLiteral("shortcuts"), QVariant::fromValue(PortalShortcuts())}});
        m_question.clear();
    }
    /// And later, in the desktop's settings; empty for none.
    void change(const QString& keys) {
        m_isBound = !keys.isEmpty();
        send(QStringLiteral("ShortcutsChanged"),
             {QVariant::fromValue(QDBusObjectPath(m_session)),
              m_isBound ? bound(keys) : QVariant::fromValue(PortalShortcuts())});
    }
    /// The same with anything in the place of the shortcuts.
    void tellShortcuts(const QVariant& shortcuts) {
        send(QStringLiteral("ShortcutsChanged"),
             {QVariant::fromValue(QDBusObjectPath(m_session)), shortcuts});
    }
    void press(const QString& shortcut = QStringLiteral("toggle"), int times = 1) {
        if (!m_isBound) return;
        const QVariantList arguments{QVariant::fromValue(QDBusObjectPath(m_session)), shortcut,
                                     qulonglong(0), QVariantMap()};
        for (int i = 0; i < times; ++i)
            send(QStringLiteral("Activated"), arguments);
        send(QStringLiteral("Deactivated"), arguments);
    }
    void closeSession() {
        m_isBound = false;
        m_client.bus().send(QDBusMessage::createSignal(
            m_session, QStringLiteral("org.freedesktop.portal.Session"), QStringLiteral("Closed")));
    }

    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        const QString member = call.member();
        const QVariantList given = call.arguments();
        calls[call.service()] << member;
        const bool isOurs = call.interface() != kShortcuts || hasShortcuts;
        if (refuses || !isOurs || (member == QLatin1String("Register") && !hasRegistry)) {
            bus.send(call.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("no")));
        } else if (member == QLatin1String("Get")) {
            if (hasShortcuts)
                bus.send(call.createReply(QVariant::fromValue(QDBusVariant(1U))));
            else
                bus.send(call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("no")));
        } else if (member == QLatin1String("Register")) {
            bus.send(call.createReply());
        } else if (member == QLatin1String("CreateSession")) {
            const QString request = accept(call, bus, given.value(0));
            m_session = handle;
            respond(request, 0, {{QStringLiteral("session_handle"), m_session}});
        } else if (member == QLatin1String("BindShortcuts")) {
            m_wanted = qdbus_cast<PortalShortcuts>(given.value(1));
            m_question = accept(call, bus, given.value(3));
            if (asksNothing) grant();
        }
        return true;
    }

private:
    QString accept(const QDBusMessage& call, const QDBusConnection& bus, const QVariant& options) {
        QString sender = call.service().mid(1);
        sender.replace(QLatin1Char('.'), QLatin1Char('_'));
        const auto token =
            qdbus_cast<QVariantMap>(options).value(QStringLiteral("handle_token")).toString();
        const QString request = QStringLiteral("%1/request/%2/%3").arg(kPath, sender, token);
        bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        return request;
    }
    void respond(const QString& request, uint code, const QVariantMap& results) {
        auto signal = QDBusMessage::createSignal(
            request, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        m_client.bus().send(signal << code << results);
    }
    void send(const QString& name, const QVariantList& arguments) {
        auto signal = QDBusMessage::createSignal(kPath, kShortcuts, name);
        signal.setArguments(arguments);
        m_client.bus().send(signal);
    }
    [[nodiscard]] static QVariant bound(const QString& keys) {
        return QVariant::fromValue(PortalShortcuts{
            {QStringLiteral("toggle"), {{QStringLiteral("trigger_description"), keys}}}});
    }

    const QString kName = QStringLiteral("org.freedesktop.portal.Desktop");
    const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString kShortcuts = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
    BusClient m_client;
    QString m_session;
    QString m_question;
    PortalShortcuts m_wanted;
    bool m_isBound = false;
};

} // namespace vantle::tests
