#include "platform/session/LoginScreenPower.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
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

QDBusMessage callTo(const QString& path, const QString& interface, const QString& method) {
    auto call = QDBusMessage::createMethodCall(kLogin, path, interface, method);
    call.setAutoStartService(false);
    return call;
}

QDBusMessage propertyOf(const QString& path, const QString& interface, const QString& name) {
    return callTo(path, kPropertyInterface, QStringLiteral("Get")) << interface << name;
}

} // namespace

LoginScreenPower::LoginScreenPower(const QByteArray& systemBusAddress, QString sessionId)
    : m_sessionId(std::move(sessionId))
    , m_late(systemBusAddress)
    , m_bus(QString()) {
    connect(&m_late, &LateBus::connected, this, &LoginScreenPower::follow);
}

void LoginScreenPower::follow(const QDBusConnection& bus) {
    m_bus = bus;
    auto* watcher =
        new QDBusServiceWatcher(kLogin, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                loseManager();
                if (!newOwner.isEmpty()) meetManager();
            });
    m_bus.connect(kLogin, kLoginPath, kLoginManager, QStringLiteral("PrepareForSleep"), this,
                  SLOT(takeSuspension(bool)));
    // From every session: which one is the user's is not known yet.
    for (const auto& name : {QStringLiteral("Lock"), QStringLiteral("Unlock")})
        m_bus.connect(kLogin, QString(), kLoginSession, name, this, SLOT(takeLock(QDBusMessage)));
    m_bus.connect(kLogin, QString(), kPropertyInterface, QStringLiteral("PropertiesChanged"),
                  QStringList{kLoginSession}, QString(), this, SLOT(takeProperties(QDBusMessage)));
    meetManager();
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

template <typename Reply, typename Take, typename Fail>
void LoginScreenPower::ask(const QDBusMessage& call, Take take, Fail fail) {
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, take, fail] {
        answer->deleteLater();
        const QDBusPendingReply<Reply> reply = *answer;
        if (reply.isValid())
            take(reply.value());
        else
            fail();
    });
}

void LoginScreenPower::inhibit() {
    const auto call = callTo(kLoginPath, kLoginManager, QStringLiteral("Inhibit"))
                      << QStringLiteral("sleep") << QStringLiteral("Vantle")
                      << QStringLiteral("Notes down the pause of the session")
                      << QStringLiteral("delay");
    ask<QDBusUnixFileDescriptor>(
        call,
        [this](const QDBusUnixFileDescriptor& lock) {
            // One that comes while the machine is about to sleep would only hold it up.
            if (!m_suspending) m_inhibitor = lock;
        },
        [] {});
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
    const auto call = callTo(kLoginPath, kLoginManager, QStringLiteral("GetSession"))
                      << m_sessionId;
    ask<QDBusObjectPath>(
        call, [this](const QDBusObjectPath& path) { takeSession(path.path()); },
        [this] { askForSessionOfUser(); });
}

void LoginScreenPower::askForSessionOfUser() {
    const auto call = callTo(kLoginPath, kLoginManager, QStringLiteral("GetUser")) << getuid();
    ask<QDBusObjectPath>(
        call, [this](const QDBusObjectPath& path) { askForDisplay(path.path()); }, [] {});
}

void LoginScreenPower::askForDisplay(const QString& userPath) {
    ask<QDBusVariant>(
        propertyOf(userPath, kLoginUser, QStringLiteral("Display")),
        [this](const QDBusVariant& display) {
            const auto fields = display.variant().value<QDBusArgument>();
            if (fields.currentSignature() != QLatin1String("(so)")) return;
            QString id;
            QDBusObjectPath path;
            fields.beginStructure();
            fields >> id >> path;
            fields.endStructure();
            takeSession(path.path());
        },
        [] {});
}

void LoginScreenPower::takeSession(const QString& path) {
    m_sessionPath = path;
    ask<QDBusVariant>(
        propertyOf(path, kLoginSession, kLockedHint),
        [this](const QDBusVariant& hint) { setLockedHint(hint.variant().toBool()); }, [] {});
}

void LoginScreenPower::takeLock(const QDBusMessage& signal) {
    if (signal.path() != m_sessionPath) return;
    const bool locks = signal.member() == QLatin1String("Lock");
    setCause(LockSignalCause, locks);
    if (!locks) setCause(LockHintCause, false);
}

void LoginScreenPower::takeProperties(const QDBusMessage& signal) {
    if (signal.path() != m_sessionPath || signal.arguments().size() < 2) return;
    const auto changed = qdbus_cast<QVariantMap>(signal.arguments().at(1));
    const auto hint = changed.constFind(kLockedHint);
    if (hint != changed.cend()) setLockedHint(hint->toBool());
}

void LoginScreenPower::setLockedHint(bool locked) {
    setCause(LockHintCause, locked);
    // A locker that keeps the hint tells the end of what the signal began.
    if (!locked) setCause(LockSignalCause, false);
}

} // namespace vantle
