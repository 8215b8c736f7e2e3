// Display sleep as the desktop session and the login manager tell it.
#pragma once

#include "platform/CausedScreenPower.h"

#include <QDBusConnection>

namespace vantle {

/// Asleep while the session's screen saver or lock is active (org.freedesktop.ScreenSaver,
/// org.gnome.ScreenSaver), or the machine is suspended (org.freedesktop.login1).
///
/// A service that is not there, and a bus that is not there, never sleep. Services may come, go and
/// come back. Nothing blocks: a screen saver that is active at the start is told by `slept` as soon
/// as it has answered. No service is started by this.
class SessionScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// The two buses, which may be the same.
    SessionScreenPower(const QDBusConnection& session, const QDBusConnection& system);

private Q_SLOTS:
    void takeFreedesktopActive(bool active);
    void takeGnomeActive(bool active);
    void takeSuspension(bool begins);

private:
    struct ScreenSaver;
    void follow(const QDBusConnection& session, const ScreenSaver& screenSaver);
    void askWhetherActive(const QDBusConnection& session, const ScreenSaver& screenSaver);
};

} // namespace vantle
