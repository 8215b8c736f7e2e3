// The D-Bus types of the tray menu.
//
// Any thread.
#pragma once

#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QDBusArgument;

namespace vantle {

/// An entry with its children: (ia{sv}av). The menu itself has id 0.
struct TrayMenuNode {
    int id = 0;
    QVariantMap properties;
    QList<TrayMenuNode> children;
};

/// The properties of an entry: (ia{sv}).
struct TrayMenuLine {
    int id = 0;
    QVariantMap properties;
};

/// Properties that returned to their defaults: (ias).
struct TrayMenuDefaults {
    int id = 0;
    QStringList names;
};

/// An event on an entry: (isvu).
struct TrayMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    uint timestamp = 0;
};

/// Registers the types above with D-Bus. Repeatable.
void registerTrayMenuTypes();

QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuNode& node);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuNode& node);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuLine& line);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuLine& line);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuDefaults& defaults);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuDefaults& defaults);
QDBusArgument& operator<<(QDBusArgument& argument, const TrayMenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayMenuEvent& event);

} // namespace vantle

Q_DECLARE_METATYPE(vantle::TrayMenuNode)
Q_DECLARE_METATYPE(vantle::TrayMenuLine)
Q_DECLARE_METATYPE(vantle::TrayMenuDefaults)
Q_DECLARE_METATYPE(vantle::TrayMenuEvent)
