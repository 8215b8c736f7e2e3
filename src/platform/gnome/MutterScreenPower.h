// Screens that GNOME's shell has switched off.
#pragma once

#include "platform/CausedScreenPower.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QVariant>

namespace vantle {

/// `PowerSaveMode` of `org.gnome.Mutter.DisplayConfig` on the session bus: asleep while it is any
/// of the modes that save power. Nothing blocks; a shell that is not there never sleeps.
class MutterScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    explicit MutterScreenPower(const QDBusConnection& session);

private:
    void ask();
    void takeProperties(const QVariantList& arguments);
    void take(const QVariant& mode);

    FollowedService m_displays;
};

} // namespace vantle
