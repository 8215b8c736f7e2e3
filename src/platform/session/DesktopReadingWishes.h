// The desktop's contrast and text size settings.
#pragma once

#include "platform/ReadingWishes.h"
#include "platform/session/PortalSettings.h"

namespace vantle {

/// Read from the settings portal; defaults without one. Reading is free. Main thread.
class DesktopReadingWishes final : public ReadingWishes {
    Q_OBJECT

public:
    /// Works without a bus.
    explicit DesktopReadingWishes(const QDBusConnection& session);

    [[nodiscard]] bool moreContrast() const override { return m_appearance || m_highContrast; }
    [[nodiscard]] double textScale() const override { return m_textScale; }

private:
    void take(const PortalSettings::Key& key, const QVariant& value);

    PortalSettings m_portal;
    bool m_appearance = false;   ///< by the key shared by all desktops
    bool m_highContrast = false; ///< by the switch of GNOME, which lacks that key
    double m_textScale = 1.0;
};

} // namespace vantle
