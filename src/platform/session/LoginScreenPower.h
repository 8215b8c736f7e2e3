// Suspension of the machine and lock of the session as the login manager tells them.
#pragma once

#include "platform/CausedScreenPower.h"
#include "platform/bus/FollowedService.h"
#include "platform/session/LateBus.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

#include <memory>

namespace vantle {

/// Asleep while the machine is suspended, or the user's session is locked (org.freedesktop.login1).
///
/// Holds a delay inhibitor: the machine sleeps only when every listener of `slept` has returned, or
/// after the manager's limit of some seconds. The lock is the session's LockedHint and its signals
/// Lock and Unlock; where no locker keeps the hint, a Lock may never be followed by an end.
///
/// A bus or a manager that is missing, or never answers, never sleeps. Nothing blocks.
class LoginScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// The address of the system's bus, and the user's session as in $XDG_SESSION_ID. Without a
    /// session id it is the one that the manager shows for the user.
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
    void setLockedHint(bool locked);

    const QString m_sessionId;
    LateBus m_late;
    std::unique_ptr<FollowedService> m_login; ///< once the bus answers
    QString m_sessionPath;                    ///< empty until the manager has named it
    QDBusUnixFileDescriptor m_inhibitor;      ///< the machine waits while this is open
    bool m_suspending = false;
};

} // namespace vantle
