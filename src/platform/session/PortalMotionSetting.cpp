#include "platform/session/PortalMotionSetting.h"

namespace vantle {

namespace {

/// 0 default, 1 reduce
const PortalSettings::Key kReducedMotion{QStringLiteral("org.freedesktop.appearance"),
                                         QStringLiteral("reduced-motion")};
/// a bool
const PortalSettings::Key kEnableAnimations{QStringLiteral("org.gnome.desktop.interface"),
                                            QStringLiteral("enable-animations")};

} // namespace

PortalMotionSetting::PortalMotionSetting(const QDBusConnection& session)
    : m_portal(session, {kReducedMotion, kEnableAnimations}) {
    connect(&m_portal, &PortalSettings::told, this, &PortalMotionSetting::take);
}

void PortalMotionSetting::take(const PortalSettings::Key& key, const QVariant& value) {
    const std::optional<bool> before = reduced();
    if (key == kReducedMotion) {
        m_reducedMotion.reset();
        if (value.toUInt() == 1) m_reducedMotion = true;
    } else if (value.userType() == QMetaType::Bool) {
        m_animationsOff = !value.toBool();
    }
    if (reduced() != before) Q_EMIT changed();
}

} // namespace vantle
