#include "platform/dbus/SessionScreenPower.h"

#include "platform/dbus/AnswerLimit.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace vantle {

namespace {

enum Cause : unsigned { FreedesktopCause, GnomeCause, SuspensionCause };

} // namespace

/// A service of the screen saver kind. They share interface and behaviour under different names.
struct SessionScreenPower::ScreenSaver {
    QString name; ///< of service and interface alike
    QString path; ///< of the object that answers; signals may come from others
    unsigned cause;
    const char* slot;
};

SessionScreenPower::SessionScreenPower(const QDBusConnection& session,
                                       const QDBusConnection& system) {
    follow(session, {QStringLiteral("org.freedesktop.ScreenSaver"),
                     QStringLiteral("/org/freedesktop/ScreenSaver"), FreedesktopCause,
                     SLOT(takeFreedesktopActive(bool))});
    follow(session,
           {QStringLiteral("org.gnome.ScreenSaver"), QStringLiteral("/org/gnome/ScreenSaver"),
            GnomeCause, SLOT(takeGnomeActive(bool))});

    QDBusConnection(system).connect(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(takeSuspension(bool)));
}

void SessionScreenPower::follow(const QDBusConnection& session, const ScreenSaver& screenSaver) {
    if (!session.isConnected()) return;
    // From any path: some services signal on an older one.
    QDBusConnection(session).connect(screenSaver.name, QString(), screenSaver.name,
                                     QStringLiteral("ActiveChanged"), this, screenSaver.slot);
    auto* watcher = new QDBusServiceWatcher(screenSaver.name, session,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this, session, screenSaver](const QString&, const QString&, const QString& newOwner) {
                setCause(screenSaver.cause, false); // what the old one said died with it
                if (!newOwner.isEmpty()) askWhetherActive(session, screenSaver);
            });
    askWhetherActive(session, screenSaver);
}

void SessionScreenPower::askWhetherActive(const QDBusConnection& session,
                                          const ScreenSaver& screenSaver) {
    auto call = QDBusMessage::createMethodCall(screenSaver.name, screenSaver.path, screenSaver.name,
                                               QStringLiteral("GetActive"));
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(session.asyncCall(call, kAnswerLimitMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, cause = screenSaver.cause] {
                answer->deleteLater();
                const QDBusPendingReply<bool> reply = *answer;
                if (reply.isValid()) setCause(cause, reply.value());
            });
}

void SessionScreenPower::takeFreedesktopActive(bool active) { setCause(FreedesktopCause, active); }
void SessionScreenPower::takeGnomeActive(bool active) { setCause(GnomeCause, active); }
void SessionScreenPower::takeSuspension(bool begins) { setCause(SuspensionCause, begins); }

} // namespace vantle
