// The file filter of a portal's dialog.
//
// D-Bus type a(sa(us)). Any thread.
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QMetaType>
#include <QString>

namespace vantle {

struct PortalPattern {
    uint kind = 0; ///< 0 for a glob
    QString pattern;
};

struct PortalFilter {
    QString name;
    QList<PortalPattern> patterns;
};

using PortalFilters = QList<PortalFilter>;

inline QDBusArgument& operator<<(QDBusArgument& out, const PortalPattern& pattern) {
    out.beginStructure();
    out << pattern.kind << pattern.pattern;
    out.endStructure();
    return out;
}

inline const QDBusArgument& operator>>(const QDBusArgument& in, PortalPattern& pattern) {
    in.beginStructure();
    in >> pattern.kind >> pattern.pattern;
    in.endStructure();
    return in;
}

inline QDBusArgument& operator<<(QDBusArgument& out, const PortalFilter& filter) {
    out.beginStructure();
    out << filter.name << filter.patterns;
    out.endStructure();
    return out;
}

inline const QDBusArgument& operator>>(const QDBusArgument& in, PortalFilter& filter) {
    in.beginStructure();
    in >> filter.name >> filter.patterns;
    in.endStructure();
    return in;
}

} // namespace vantle

Q_DECLARE_METATYPE(vantle::PortalPattern)
Q_DECLARE_METATYPE(vantle::PortalFilter)
