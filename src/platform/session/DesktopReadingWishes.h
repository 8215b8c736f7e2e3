// The desktop's wishes for more contrast and for larger text.
#pragma once

#include "platform/ReadingWishes.h"
#include "platform/session/PortalSettings.h"

namespace vantle {

/// Told by the settings portal; without one nothing is wished for. Reading is free.
class DesktopReadingWishes final : public ReadingWishes {
    Q_OBJECT

public:
    /// A missing bus is no failure.
    explicit DesktopReadingWishes(const QDBusConnection& session);

    [[nodiscard]] bool moreContrast() const override { return m_appearance || m_highContrast; }
    [[nodiscard]] double textScale() const override { return m_textScale; }

private:
    void take(const PortalSettings::Key& key, const QVariant& value);

    PortalSettings m_portal;
    bool m_appearance = false;   ///< by the key that all desktops share
    bool m_highContrast = false; ///< by the switch of a desktop that has not got it
    double m_textScale = 1.0;
};

} // namespace vantle
