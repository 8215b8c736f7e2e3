// The desktop's wish for less movement, wherever the desktop keeps it.
#pragma once

#include "platform/ReducedMotion.h"
#include "platform/dbus/MotionSettingFiles.h"
#include "platform/dbus/PortalMotionSetting.h"

namespace vantle {

/// The settings portal where it answers, else the settings files, else no. The value is kept up to
/// date behind the scenes; reading it is free.
class DesktopReducedMotion final : public ReducedMotion {
public:
    /// The person's configuration directory, as $XDG_CONFIG_HOME. A missing bus is no failure.
    DesktopReducedMotion(const QDBusConnection& session, const QString& configDirectory)
        : m_portal(session)
        , m_files(configDirectory) {}

    [[nodiscard]] bool enabled() const override {
        return m_portal.reduced().value_or(m_files.reduced().value_or(false));
    }

private:
    PortalMotionSetting m_portal;
    MotionSettingFiles m_files;
};

} // namespace vantle
