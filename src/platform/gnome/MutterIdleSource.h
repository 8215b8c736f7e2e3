// The idle time from GNOME's shell.
#pragma once

#include "platform/IdleEvents.h"
#include "platform/IdleSource.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <optional>

namespace vantle {

/// `org.gnome.Mutter.IdleMonitor` on the session bus. Its counter would need a blocking call, and a
/// cached value would report a user away who is back. Therefore the shell reports the first second
/// without input and the first input after it. Inhibitors have no influence. The shell may come and
/// go. Main thread.
class MutterIdleSource final : public IdleSource {
    Q_OBJECT

public:
    /// `clock` must outlive this object.
    MutterIdleSource(const QDBusConnection& session, const Clock& clock);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override { return m_events.has_value(); }

private:
    void meet();
    void lose();
    void watchForInput();
    void askWhetherStillIdle();
    void takeWatch(uint id);
    [[nodiscard]] QDBusMessage callTo(const QString& method) const;

    FollowedService m_monitor;
    const Clock& m_clock;
    std::optional<IdleEvents> m_events; ///< set while the shell reports
    uint m_idleWatch = 0;
    uint m_inputWatch = 0; ///< for the next input; 0 when there is none
};

} // namespace vantle
