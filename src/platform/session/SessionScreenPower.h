// The screen savers and lockers of desktop sessions.
#pragma once

#include "platform/CausedScreenPower.h"

#include <QDBusConnection>
#include <QString>

namespace vantle {

/// Asleep while a screen saver of the session is active or locks: org.freedesktop.ScreenSaver and
/// those of GNOME, MATE, Cinnamon and Xfce, which share its interface under names of their own.
///
/// A service that is not there, and a bus that is not there, never sleep. Services may come, go and
/// come back. Nothing blocks: a screen saver that is active at the start is told by `slept` as soon
/// as it has answered. No service is started by this.
class SessionScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    explicit SessionScreenPower(const QDBusConnection& session);

private:
    void follow(const QDBusConnection& session, unsigned cause, const QString& name);
};

} // namespace vantle
