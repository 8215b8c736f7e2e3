// A menu as it goes over D-Bus to the programs that draw trays.
#pragma once

#include <QDBusVariant>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class QDBusArgument;

namespace vantle {

/// A line of a menu and the lines below it: (ia{sv}av). The menu itself has the id 0.
struct TrayMenuNode {
    int id = 0;
    QVariantMap properties;
    QList<TrayMenuNode> children;
};

/// What a line looks like: (ia{sv}).
struct TrayMenuLine {
    int id = 0;
    QVariantMap properties;
};

/// Properties of a line that went back to their defaults: (ias).
struct TrayMenuDefaults {
    int id = 0;
    QStringList names;
};

/// What happened to a line: (isvu).
struct TrayMenuEvent {
    int id = 0;
    QString type;
    QDBusVariant data;
    uint timestamp = 0;
};

/// Makes the types above known to D-Bus. May be called again.
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
