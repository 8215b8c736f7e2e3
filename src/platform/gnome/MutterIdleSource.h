// The time without input, from GNOME's shell.
#pragma once

#include "platform/IdleEvents.h"
#include "platform/IdleSource.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QDBusMessage>

#include <optional>

namespace vantle {

/// `org.gnome.Mutter.IdleMonitor` on the session bus. It has a counter, but a reading may wait for
/// nobody, and one from the last reading would call a user away who has come back since. So it is
/// asked to tell the first second without input, and the first input after it. What inhibits the
/// session's idleness changes nothing here. The shell may come, go and come back. Main thread.
class MutterIdleSource final : public IdleSource {
    Q_OBJECT

public:
    /// `clock` must outlive this.
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
    std::optional<IdleEvents> m_events; ///< while the shell tells
    uint m_idleWatch = 0;
    uint m_inputWatch = 0; ///< of the next input alone; 0 while none is waited for
};

} // namespace vantle
