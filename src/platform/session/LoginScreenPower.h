// Suspension and session lock, from the login manager.
#pragma once

#include "platform/CausedScreenPower.h"
#include "platform/bus/FollowedService.h"
#include "platform/session/LateBus.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QVariant>

#include <memory>

namespace vantle {

/// Asleep while the machine is suspended or the user's session is locked (org.freedesktop.login1).
///
/// Holds a delay inhibitor: the machine sleeps only after every listener of `slept` has returned,
/// or after the manager's limit of some seconds. Lock state is the session's LockedHint and the
/// signals Lock and Unlock; without a locker that sets the hint, a Lock may have no end.
///
/// Never asleep without a bus or a manager that responds. Does not block. Main thread.
class LoginScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// The system bus address, and $XDG_SESSION_ID. Without a session id it uses the session that
    /// the manager displays for the user.
    LoginScreenPower(const QByteArray& systemBusAddress, QString sessionId);

private:
    void takeSuspension(bool begins);
    void takeLock(const QDBusMessage& signal);
    void takeProperties(const QDBusMessage& signal);
    void follow(const QDBusConnection& bus);
    void meetManager();
    void loseManager();
    void inhibit();
    void askForSession();
    void askForSessionOfUser();
    void askForDisplay(const QString& userPath);
    void takeSession(const QString& path);
    void takeLockedHint(const QVariant& hint);

    const QString m_sessionId;
    LateBus m_late;
    std::unique_ptr<FollowedService> m_login; ///< null until the bus responds
    QString m_sessionPath;                    ///< empty until the manager reports it
    QDBusUnixFileDescriptor m_inhibitor;      ///< delays suspension while open
    bool m_suspending = false;
};

} // namespace vantle
