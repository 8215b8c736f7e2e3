// What reads the messages of services, as the program uses it.
#pragma once

#include "BusValues.h"
#include "fakes/VirtualTime.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace vantle::fuzz {

/// One message that a service sends by itself.
struct Told {
    QByteArray path;
    QByteArray interface;
    QByteArray member;
    Expected expected = {};
    bool isCall = false;
};

/// The path of a message that answers the last request to a portal.
inline const QByteArray kLastRequest = "request";

inline const QByteArray kPortal = "org.freedesktop.portal.Desktop";
inline const QByteArray kPortalPath = "/org/freedesktop/portal/desktop";
inline const QByteArray kProperties = "org.freedesktop.DBus.Properties";
inline const QByteArray kLogin = "org.freedesktop.login1";

/// One reader. Services send what `told` lists, in the right types or not.
class Subject {
public:
    virtual ~Subject() = default;
    virtual QList<QByteArray> services() const = 0;
    virtual std::vector<Told> told() const = 0;
    /// Something that the program or time does in between.
    virtual void act(std::uint8_t) {}
    /// What holds at any time.
    virtual void check() const {}
    /// What holds without any message in the right types, and after the services have gone.
    virtual void checkUnknown() const {}
    virtual void checkGone() const { checkUnknown(); }
};

/// Everything that a subject is made with.
struct World {
    QDBusConnection session;
    QByteArray address;
    fakes::VirtualTime time;
    QString folder; ///< an empty one
};

using MakeSubject = std::unique_ptr<Subject> (*)(World& world);

template <typename Kind>
std::unique_ptr<Subject> make(World& world) {
    return std::make_unique<Kind>(world);
}

/// Readers of what desktops tell of screens, input and windows, and of what they are asked for.
[[nodiscard]] std::vector<MakeSubject> desktopSubjects();
[[nodiscard]] std::vector<MakeSubject> requestSubjects();

} // namespace vantle::fuzz
