// What the desktop's settings portal says about movement.
#pragma once

#include "platform/session/PortalSettings.h"

#include <optional>

namespace vantle {

/// Main thread; nothing blocks, the answer comes a moment after the construction.
class PortalMotionSetting final : public QObject {
    Q_OBJECT

public:
    explicit PortalMotionSetting(const QDBusConnection& session);

    /// Whether movement is to be reduced, as last heard. Empty while the portal has said nothing.
    [[nodiscard]] std::optional<bool> reduced() const {
        return m_reducedMotion ? m_reducedMotion : m_animationsOff;
    }

Q_SIGNALS:
    /// reduced() changed.
    void changed();

private:
    void take(const PortalSettings::Key& key, const QVariant& value);

    PortalSettings m_portal;
    std::optional<bool> m_reducedMotion; ///< set to true at most: false there means "no wish"
    std::optional<bool> m_animationsOff;
};

} // namespace vantle
