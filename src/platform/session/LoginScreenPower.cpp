#include "platform/session/LoginScreenPower.h"

#include "platform/bus/BusValue.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantMap>

#include <unistd.h>

namespace vantle {

namespace {

enum LoginCause : unsigned { SuspensionCause, LockHintCause, LockSignalCause };

const QString kLogin = QStringLiteral("org.freedesktop.login1");
const QString kLoginPath = QStringLiteral("/org/freedesktop/login1");
const QString kLoginManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString kLoginSession = QStringLiteral("org.freedesktop.login1.Session");
const QString kLoginUser = QStringLiteral("org.freedesktop.login1.User");
const QString kPropertyInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kLockedHint = QStringLiteral("LockedHint");

} // namespace

LoginScreenPower::LoginScreenPower(const QByteArray& systemBusAddress, QString sessionId)
    : m_sessionId(std::move(sessionId))
    , m_late(systemBusAddress) {
    connect(&m_late, &LateBus::connected, this, &LoginScreenPower::follow);
}

void LoginScreenPower::follow(const QDBusConnection& bus) {
    m_login = std::make_unique<FollowedService>(bus, kLogin);
    connect(m_login.get(), &FollowedService::gone, this, &LoginScreenPower::loseManager);
    connect(m_login.get(), &FollowedService::came, this, &LoginScreenPower::meetManager);
    m_login->hear(kLoginPath, kLoginManager, QStringLiteral("PrepareForSleep"),
                  [this](const QDBusMessage& signal) {
                      const auto begins = busValue<bool>(signal.arguments().value(0));
                      if (begins) takeSuspension(*begins);
                  });
    // From every session, since the user's session is not known yet.
    for (const auto& name : {QStringLiteral("Lock"), QStringLiteral("Unlock")})
        m_login->hear(QString(), kLoginSession, name,
                      [this](const QDBusMessage& signal) { takeLock(signal); });
    m_login->hear(
        QString(), kPropertyInterface, QStringLiteral("PropertiesChanged"),
        [this](const QDBusMessage& signal) { takeProperties(signal); }, kLoginSession);
}

void LoginScreenPower::meetManager() {
    inhibit();
    askForSession();
}

void LoginScreenPower::loseManager() {
    m_inhibitor = {};
    m_sessionPath.clear();
    m_suspending = false;
    for (const LoginCause cause : {SuspensionCause, LockHintCause, LockSignalCause})
        setCause(cause, false);
}

void LoginScreenPower::inhibit() {
    const auto call = m_login->call(kLoginPath, kLoginManager, QStringLiteral("Inhibit"))
                      << QStringLiteral("sleep") << QStringLiteral("Vantle")
                      << QStringLiteral("Notes down the pause of the session")
                      << QStringLiteral("delay");
    m_login->ask<QDBusUnixFileDescriptor>(call, [this](const QDBusUnixFileDescriptor& lock) {
        // A lock that arrives during the suspension would only delay it.
        if (!m_suspending) m_inhibitor = lock;
    });
}

void LoginScreenPower::takeSuspension(bool begins) {
    m_suspending = begins;
    setCause(SuspensionCause, begins);
    if (begins)
        m_inhibitor = {};
    else
        inhibit();
}

void LoginScreenPower::askForSession() {
    if (m_sessionId.isEmpty()) {
        askForSessionOfUser();
        return;
    }
    const auto call = m_login->call(kLoginPath, kLoginManager, QStringLiteral("GetSession"))
                      << m_sessionId;
    m_login->ask<QDBusObjectPath>(
        call, [this](const QDBusObjectPath& path) { takeSession(path.path()); },
        [this] { askForSessionOfUser(); });
}

void LoginScreenPower::askForSessionOfUser() {
    const auto call = m_login->call(kLoginPath, kLoginManager, QStringLiteral("GetUser"))
                      << getuid();
    m_login->ask<QDBusObjectPath>(
        call, [this](const QDBusObjectPath& path) { askForDisplay(path.path()); });
}

void LoginScreenPower::askForDisplay(const QString& userPath) {
    m_login->ask<QDBusVariant>(m_login->get(userPath, kLoginUser, QStringLiteral("Display")),
                               [this](const QDBusVariant& display) {
                                   const auto fields = display.variant().value<QDBusArgument>();
                                   if (fields.currentSignature() != QLatin1String("(so)")) return;
                                   QString id;
                                   QDBusObjectPath path;
                                   fields.beginStructure();
                                   fields >> id >> path;
                                   fields.endStructure();
                                   takeSession(path.path());
                               });
}

void LoginScreenPower::takeSession(const QString& path) {
    m_sessionPath = path;
    m_login->ask<QDBusVariant>(
        m_login->get(path, kLoginSession, kLockedHint),
        [this](const QDBusVariant& hint) { takeLockedHint(hint.variant()); });
}

void LoginScreenPower::takeLock(const QDBusMessage& signal) {
    if (signal.path() != m_sessionPath) return;
    const bool locks = signal.member() == QLatin1String("Lock");
    setCause(LockSignalCause, locks);
    if (!locks) setCause(LockHintCause, false);
}

void LoginScreenPower::takeProperties(const QDBusMessage& signal) {
    if (signal.path() != m_sessionPath) return;
    if (const auto changed = busValue<QVariantMap>(signal.arguments().value(1)))
        takeLockedHint(changed->value(kLockedHint));
}

void LoginScreenPower::takeLockedHint(const QVariant& hint) {
    const auto locked = busValue<bool>(hint);
    if (!locked) return;
    setCause(LockHintCause, *locked);
    // A locker that maintains the hint also ends what the signal began.
    if (!*locked) setCause(LockSignalCause, false);
}

} // namespace vantle
