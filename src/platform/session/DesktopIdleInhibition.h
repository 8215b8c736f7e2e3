// Idle inhibitors of the session manager and of the login manager.
#pragma once

#include "platform/IdleInhibition.h"
#include "platform/bus/FollowedService.h"
#include "platform/session/LateBus.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMetaType>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace vantle {

/// One entry of the login manager's list.
struct LoginInhibitor {
    QString what; ///< with colons between
    QString who;
    QString why;
    QString mode;
    uint user = 0;
    uint process = 0;
};

QDBusArgument& operator<<(QDBusArgument& out, const LoginInhibitor& inhibitor);
const QDBusArgument& operator>>(const QDBusArgument& in, LoginInhibitor& inhibitor);

/// Asks GNOME's session manager, whose interface those of MATE and Cinnamon have too, KDE's power
/// management and the login manager, each when it comes and whenever it tells of a change. No
/// service of the name org.freedesktop.ScreenSaver tells who inhibits it; GNOME's and KDE's pass
/// that on to those above. The login manager alone counts as not telling, since few applications
/// ask it. Nothing blocks, and no service is started.
class DesktopIdleInhibition final : public IdleInhibition {
    Q_OBJECT

public:
    /// The address is that of the system's bus.
    DesktopIdleInhibition(const QDBusConnection& session, QByteArray systemBusAddress);
    ~DesktopIdleInhibition() override;

    [[nodiscard]] bool isHeld() const override;
    [[nodiscard]] bool canTell() const override;
    void setFollowed(bool followed) override;

private:
    /// One of the services.
    struct Teller {
        Teller(const QDBusConnection& bus, const QString& name)
            : service(bus, name)
            , isSilent(!bus.isConnected()) {}

        FollowedService service;
        bool tellsAll = false; ///< what applications ask for on its desktop
        bool isSilent;         ///< known not to be there, or not to answer
        bool held = false;
    };

    Teller& follow(const QDBusConnection& bus, const QString& name,
                   std::function<void(Teller&)> ask);
    void followSession();
    void followLogin(const QDBusConnection& system);
    void take(Teller& teller, bool held);
    void giveUp(Teller& teller);

    const QDBusConnection m_session;
    const QByteArray m_systemBusAddress;
    std::unique_ptr<LateBus> m_system; ///< there while followed
    std::vector<std::unique_ptr<Teller>> m_tellers;
};

} // namespace vantle

Q_DECLARE_METATYPE(vantle::LoginInhibitor)
