// The reduced motion setting in the settings portal.
#pragma once

#include "platform/session/PortalSettings.h"

#include <optional>

namespace vantle {

/// Does not block; the reply comes shortly after construction. Main thread.
class PortalMotionSetting final : public QObject {
    Q_OBJECT

public:
    explicit PortalMotionSetting(const QDBusConnection& session);

    /// The last known setting; empty while the portal has reported none.
    [[nodiscard]] std::optional<bool> reduced() const {
        return m_reducedMotion ? m_reducedMotion : m_animationsOff;
    }

Q_SIGNALS:
    /// reduced() changed.
    void changed();

private:
    void take(const PortalSettings::Key& key, const QVariant& value);

    PortalSettings m_portal;
    std::optional<bool> m_reducedMotion; ///< only ever true: false there means "default"
    std::optional<bool> m_animationsOff;
};

} // namespace vantle
