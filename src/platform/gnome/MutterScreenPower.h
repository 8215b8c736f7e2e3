// Screens that GNOME's shell has switched off.
#pragma once

#include "platform/CausedScreenPower.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariant>

namespace vantle {

/// `PowerSaveMode` of `org.gnome.Mutter.DisplayConfig` on the session bus: asleep while it is any
/// of the modes that save power. Nothing blocks; a shell that is not there never sleeps.
class MutterScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    explicit MutterScreenPower(const QDBusConnection& session);

private Q_SLOTS:
    void takeProperties(const QDBusMessage& signal);

private:
    void ask();
    void take(const QVariant& mode);

    QDBusConnection m_session;
};

} // namespace vantle
