#include "platform/session/DesktopIdleInhibition.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <array>
#include <unistd.h>
#include <utility>

namespace vantle {

namespace {

/// A service of the session bus that tells all that applications ask for on its desktop. Its
/// interface has its name.
struct SessionTeller {
    QString name;
    QString path;
    QString method; ///< takes the kind of inhibition, returns whether there is one
    uint kind;
    QStringList changes; ///< signals
};

const std::array kSessionTellers{
    // MATE's lacks the property InhibitedActions. The kind is a flag: the session may not go idle.
    SessionTeller{QStringLiteral("org.gnome.SessionManager"),
                  QStringLiteral("/org/gnome/SessionManager"),
                  QStringLiteral("IsInhibited"),
                  8,
                  {QStringLiteral("InhibitorAdded"), QStringLiteral("InhibitorRemoved")}},
    // The kind is ChangeScreenSettings, which videos and calls inhibit.
    SessionTeller{QStringLiteral("org.kde.Solid.PowerManagement.PolicyAgent"),
                  QStringLiteral("/org/kde/Solid/PowerManagement/PolicyAgent"),
                  QStringLiteral("HasInhibition"),
                  4,
                  {QStringLiteral("InhibitionsChanged")}},
};

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
        followSession();
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

void DesktopIdleInhibition::followSession() {
    for (const SessionTeller& asked : kSessionTellers) {
        const auto ask = [this, &asked](Teller& teller) {
            teller.service.ask<bool>(
                teller.service.call(asked.path, asked.name, asked.method) << asked.kind,
                [this, &teller](bool held) { take(teller, held); },
                [this, &teller] { giveUp(teller); });
        };
        Teller& teller = follow(m_session, asked.name, ask);
        teller.tellsAll = true;
        for (const QString& change : asked.changes)
            teller.service.hear(asked.path, asked.name, change,
                                [&teller, ask](const auto&) { ask(teller); });
    }
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
