// The desktop's reduced motion setting, from any of its places.
#pragma once

#include "platform/ReducedMotion.h"
#include "platform/session/MotionSettingFiles.h"
#include "platform/session/PortalMotionSetting.h"

#include <utility>

namespace vantle {

/// The settings portal first, then the settings files, else false. Kept current; reading is free.
/// Main thread.
class DesktopReducedMotion final : public ReducedMotion {
    Q_OBJECT

public:
    /// `configDirectory` is the user's $XDG_CONFIG_HOME. Works without a bus.
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
    /// A change in one place may be overridden by another.
    void tell() {
        if (std::exchange(m_told, enabled()) != m_told) Q_EMIT changed();
    }

    PortalMotionSetting m_portal;
    MotionSettingFiles m_files;
    bool m_told;
};

} // namespace vantle
