#include "platform/session/DesktopIdleInhibition.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace vantle {

namespace {

const QString kGnome = QStringLiteral("org.gnome.SessionManager");
const QString kGnomePath = QStringLiteral("/org/gnome/SessionManager");
constexpr uint kGnomeIdle = 8; // of the flags that IsInhibited takes

const QString kKde = QStringLiteral("org.kde.Solid.PowerManagement.PolicyAgent");
const QString kKdePath = QStringLiteral("/org/kde/Solid/PowerManagement/PolicyAgent");
constexpr uint kKdeScreen = 4; // ChangeScreenSettings: what videos and calls inhibit

const QString kInhibitorsLogin = QStringLiteral("org.freedesktop.login1");
const QString kInhibitorsPath = QStringLiteral("/org/freedesktop/login1");
const QString kInhibitorsManager = QStringLiteral("org.freedesktop.login1.Manager");

/// Others at the machine may be in a call, too.
bool keepsUserAwake(const LoginInhibitor& inhibitor) {
    return inhibitor.user == ::getuid() && inhibitor.mode == QLatin1String("block") &&
           inhibitor.what.split(QLatin1Char(':')).contains(QLatin1String("idle"));
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& out, const LoginInhibitor& inhibitor) {
    out.beginStructure();
    out << inhibitor.what << inhibitor.who << inhibitor.why << inhibitor.mode << inhibitor.user
        << inhibitor.process;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, LoginInhibitor& inhibitor) {
    in.beginStructure();
    in >> inhibitor.what >> inhibitor.who >> inhibitor.why >> inhibitor.mode >> inhibitor.user >>
        inhibitor.process;
    in.endStructure();
    return in;
}

DesktopIdleInhibition::DesktopIdleInhibition(const QDBusConnection& session,
                                             QByteArray systemBusAddress)
    : m_session(session)
    , m_systemBusAddress(std::move(systemBusAddress)) {
    qDBusRegisterMetaType<LoginInhibitor>();
    qDBusRegisterMetaType<QList<LoginInhibitor>>();
}

DesktopIdleInhibition::~DesktopIdleInhibition() = default;

bool DesktopIdleInhibition::isHeld() const {
    return std::ranges::any_of(m_tellers, [](const auto& teller) { return teller->held; });
}

bool DesktopIdleInhibition::canTell() const {
    return m_tellers.empty() || std::ranges::any_of(m_tellers, [](const auto& teller) {
               return teller->tellsAll && !teller->isSilent;
           });
}

void DesktopIdleInhibition::setFollowed(bool followed) {
    if (followed == (m_system != nullptr)) return;
    m_tellers.clear();
    m_system.reset();
    if (followed) {
        followGnome();
        followKde();
        m_system = std::make_unique<LateBus>(m_systemBusAddress);
        connect(m_system.get(), &LateBus::connected, this, &DesktopIdleInhibition::followLogin);
    }
    Q_EMIT changed();
}

DesktopIdleInhibition::Teller& DesktopIdleInhibition::follow(const QDBusConnection& bus,
                                                             const QString& name,
                                                             std::function<void(Teller&)> ask) {
    Teller& teller = *m_tellers.emplace_back(std::make_unique<Teller>(bus, name));
    connect(&teller.service, &FollowedService::came, &teller.service,
            [this, &teller, ask = std::move(ask)] {
                teller.isSilent = false;
                Q_EMIT changed();
                ask(teller);
            });
    connect(&teller.service, &FollowedService::gone, &teller.service,
            [this, &teller] { giveUp(teller); });
    return teller;
}

void DesktopIdleInhibition::followGnome() {
    const auto ask = [this](Teller& teller) {
        // MATE's lacks the property InhibitedActions.
        teller.service.ask<bool>(
            teller.service.call(kGnomePath, kGnome, QStringLiteral("IsInhibited")) << kGnomeIdle,
            [this, &teller](bool held) { take(teller, held); },
            [this, &teller] { giveUp(teller); });
    };
    Teller& teller = follow(m_session, kGnome, ask);
    teller.tellsAll = true;
    for (const auto& signal :
         {QStringLiteral("InhibitorAdded"), QStringLiteral("InhibitorRemoved")})
        teller.service.hear(kGnomePath, kGnome, signal,
                            [&teller, ask](const auto&) { ask(teller); });
}

void DesktopIdleInhibition::followKde() {
    const auto ask = [this](Teller& teller) {
        teller.service.ask<bool>(
            teller.service.call(kKdePath, kKde, QStringLiteral("HasInhibition")) << kKdeScreen,
            [this, &teller](bool held) { take(teller, held); },
            [this, &teller] { giveUp(teller); });
    };
    Teller& teller = follow(m_session, kKde, ask);
    teller.tellsAll = true;
    teller.service.hear(kKdePath, kKde, QStringLiteral("InhibitionsChanged"),
                        [&teller, ask](const auto&) { ask(teller); });
}

void DesktopIdleInhibition::followLogin(const QDBusConnection& system) {
    const auto ask = [this](Teller& teller) {
        teller.service.ask<QList<LoginInhibitor>>(
            teller.service.call(kInhibitorsPath, kInhibitorsManager,
                                QStringLiteral("ListInhibitors")),
            [this, &teller](const QList<LoginInhibitor>& all) {
                take(teller, std::ranges::any_of(all, keepsUserAwake));
            },
            [this, &teller] { giveUp(teller); });
    };
    Teller& teller = follow(system, kInhibitorsLogin, ask);
    // BlockInhibited is among what it tells of.
    teller.service.hear(
        kInhibitorsPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("PropertiesChanged"), [&teller, ask](const auto&) { ask(teller); },
        kInhibitorsManager);
}

void DesktopIdleInhibition::take(Teller& teller, bool held) {
    const bool wasSilent = std::exchange(teller.isSilent, false);
    if (std::exchange(teller.held, held) != held || wasSilent) Q_EMIT changed();
}

void DesktopIdleInhibition::giveUp(Teller& teller) {
    teller.isSilent = true;
    teller.held = false;
    Q_EMIT changed();
}

} // namespace vantle
