// The sleep of screens that GNOME's shell switched off.
#pragma once

#include "platform/CausedScreenPower.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QVariant>

namespace vantle {

/// `PowerSaveMode` of `org.gnome.Mutter.DisplayConfig` on the session bus: asleep in any power
/// saving mode. Does not block; never asleep without a shell. Main thread.
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
