// The watcher and the host of a desktop's tray, as the code under test meets them.
#pragma once

#include "platform/tray/TrayMenuTypes.h"
#include "platform/tray/TrayPixmaps.h"
#include "support/Await.h"
#include "support/Buses.h"

#include <QDBusAbstractAdaptor>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QObject>

#include <gtest/gtest.h>

namespace vantle::tests {

inline const QString kItemInterface = QStringLiteral("org.kde.StatusNotifierItem");

/// A desktop with a tray, on a connection of its own. Not there until `appear`.
class FakeStatusNotifierWatcher final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion CONSTANT)

public:
    bool refuses = false; ///< takes no items
    QStringList items;    ///< the connections of the items that announced themselves
    int newIcons = 0;     ///< signals of items
    int newToolTips = 0;

    void appear() {
        registerTrayTypes();
        registerTrayMenuTypes();
        auto& bus = m_client.bus();
        ASSERT_TRUE(bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                       QDBusConnection::ExportAllSlots |
                                           QDBusConnection::ExportAllProperties |
                                           QDBusConnection::ExportAllSignals));
        for (const auto& signal : {QStringLiteral("NewIcon"), QStringLiteral("NewToolTip")})
            ASSERT_TRUE(bus.connect({}, QStringLiteral("/StatusNotifierItem"), kItemInterface,
                                    signal, this, SLOT(count())));
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.kde.StatusNotifierWatcher")));
    }
    void disappear() { m_client.leave(); }

    [[nodiscard]] bool hasHost() const { return m_hasHost; }
    [[nodiscard]] int protocolVersion() const { return 0; }
    void setHost(bool present) {
        m_hasHost = present;
        if (present)
            Q_EMIT StatusNotifierHostRegistered();
        else
            Q_EMIT StatusNotifierHostUnregistered();
    }

    /// Calls the item that announced itself last, as a host does.
    QDBusMessage callItem(const QString& interface, const QString& method,
                          const QVariantList& arguments,
                          const QString& path = QStringLiteral("/StatusNotifierItem")) {
        auto call =
            QDBusMessage::createMethodCall(items.value(items.size() - 1), path, interface, method);
        call.setArguments(arguments);
        const QDBusPendingCall answer = m_client.bus().asyncCall(call);
        EXPECT_TRUE(await([&] { return answer.isFinished(); }));
        return answer.reply();
    }
    [[nodiscard]] QVariant property(const QString& name) {
        return qvariant_cast<QDBusVariant>(
                   callItem(QStringLiteral("org.freedesktop.DBus.Properties"),
                            QStringLiteral("Get"), {kItemInterface, name})
                       .arguments()
                       .value(0))
            .variant();
    }
    /// The menu of the item, where the item says that it is.
    [[nodiscard]] QString menuPath() {
        return qvariant_cast<QDBusObjectPath>(property(QStringLiteral("Menu"))).path();
    }
    QDBusMessage callMenu(const QString& method, const QVariantList& arguments) {
        return callItem(QStringLiteral("com.canonical.dbusmenu"), method, arguments, menuPath());
    }
    /// The lines of the menu with all that is known of them, as a host reads them to draw it.
    [[nodiscard]] TrayMenuNode menu() {
        return qdbus_cast<TrayMenuNode>(
            callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()}).arguments().value(1));
    }
    QDBusMessage clickLine(int id) {
        return callMenu(
            QStringLiteral("Event"),
            {id, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())), 0U});
    }

    [[nodiscard]] TrayPixmaps pixmaps() {
        return qdbus_cast<TrayPixmaps>(property(QStringLiteral("IconPixmap")));
    }
    [[nodiscard]] TrayToolTip toolTip() {
        return qdbus_cast<TrayToolTip>(property(QStringLiteral("ToolTip")));
    }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) {
        if (refuses)
            sendErrorReply(QDBusError::AccessDenied);
        else
            items << service;
    }
    // Not for the bus; a signal of an item needs a slot.
    Q_SCRIPTABLE void count() {
        if (message().member() == QLatin1String("NewIcon"))
            ++newIcons;
        else
            ++newToolTips;
    }

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    bool m_hasHost = true;
    BusClient m_client;
};

} // namespace vantle::tests
