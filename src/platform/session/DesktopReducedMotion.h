// The desktop's wish for less movement, wherever the desktop keeps it.
#pragma once

#include "platform/ReducedMotion.h"
#include "platform/session/MotionSettingFiles.h"
#include "platform/session/PortalMotionSetting.h"

#include <utility>

namespace vantle {

/// The settings portal where it answers, else the settings files, else no. The value is kept up to
/// date behind the scenes; reading it is free.
class DesktopReducedMotion final : public ReducedMotion {
    Q_OBJECT

public:
    /// The person's configuration directory, as $XDG_CONFIG_HOME. A missing bus is no failure.
    DesktopReducedMotion(const QDBusConnection& session, const QString& configDirectory)
        : m_portal(session)
        , m_files(configDirectory)
        , m_told(enabled()) {
        connect(&m_portal, &PortalMotionSetting::changed, this, &DesktopReducedMotion::tell);
        connect(&m_files, &MotionSettingFiles::changed, this, &DesktopReducedMotion::tell);
    }

    [[nodiscard]] bool enabled() const override {
        return m_portal.reduced().value_or(m_files.reduced().value_or(false));
    }

private:
    /// A change of one place may change nothing where another goes before it.
    void tell() {
        if (std::exchange(m_told, enabled()) != m_told) Q_EMIT changed();
    }

    PortalMotionSetting m_portal;
    MotionSettingFiles m_files;
    bool m_told;
};

} // namespace vantle
