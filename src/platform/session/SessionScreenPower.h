// The sleep causes of the desktop's screen savers.
#pragma once

#include "platform/CausedScreenPower.h"

#include <QDBusConnection>
#include <QString>

namespace vantle {

/// Asleep while a screen saver or locker of the session is active: org.freedesktop.ScreenSaver and
/// those of GNOME, MATE, Cinnamon and Xfce, which share its interface under other names.
///
/// Services may be missing, come and go; a missing one is never asleep. Does not block or start
/// services: a screen saver already active emits `slept` after its reply. Main thread.
class SessionScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    explicit SessionScreenPower(const QDBusConnection& session);

private:
    void follow(const QDBusConnection& session, unsigned cause, const QString& name);
};

} // namespace vantle
