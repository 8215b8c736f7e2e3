#include "platform/session/DesktopReadingWishes.h"

#include "platform/bus/BusValue.h"

#include <algorithm>
#include <tuple>

namespace vantle {

namespace {

/// 0 normal, 1 high
const PortalSettings::Key kContrast{QStringLiteral("org.freedesktop.appearance"),
                                    QStringLiteral("contrast")};
/// a bool
const PortalSettings::Key kHighContrast{QStringLiteral("org.gnome.desktop.a11y.interface"),
                                        QStringLiteral("high-contrast")};
/// a double
const PortalSettings::Key kTextScale{QStringLiteral("org.gnome.desktop.interface"),
                                     QStringLiteral("text-scaling-factor")};

} // namespace

DesktopReadingWishes::DesktopReadingWishes(const QDBusConnection& session)
    : m_portal(session, {kContrast, kHighContrast, kTextScale}) {
    connect(&m_portal, &PortalSettings::told, this, &DesktopReadingWishes::take);
}

void DesktopReadingWishes::take(const PortalSettings::Key& key, const QVariant& value) {
    const auto wishes = [this] { return std::tuple(moreContrast(), textScale()); };
    const auto before = wishes();
    if (key == kContrast) {
        m_appearance = busValue<uint>(value) == 1U;
    } else if (key == kHighContrast) {
        m_highContrast = busValue<bool>(value) == true;
    } else {
        const double factor = busValue<double>(value).value_or(0);
        m_textScale = factor > 0 ? std::clamp(factor, kSmallestText, kLargestText) : 1.0;
    }
    if (wishes() != before) Q_EMIT changed();
}

} // namespace vantle
