#include "platform/session/PortalMotionSetting.h"

#include "platform/bus/BusValue.h"

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
        if (busValue<uint>(value) == 1U) m_reducedMotion = true;
    } else if (const auto animations = busValue<bool>(value)) {
        m_animationsOff = !*animations;
    }
    if (reduced() != before) Q_EMIT changed();
}

} // namespace vantle
