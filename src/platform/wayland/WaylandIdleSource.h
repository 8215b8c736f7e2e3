// The idle time from a Wayland compositor.
#pragma once

#include "platform/IdleEvents.h"
#include "platform/IdleSource.h"
#include "platform/wayland/WaylandConnection.h"

#include <functional>
#include <optional>

struct ext_idle_notifier_v1;
struct org_kde_kwin_idle;
struct wl_seat;

namespace vantle {

/// `ext_idle_notifier_v1`, or the older `org_kde_kwin_idle`. Neither has a counter: the compositor
/// reports a second without input, and the first input after it.
///
/// A video, a call or a presentation may hold an idle inhibitor. From version 2 of the notifier on,
/// input is reported regardless. In older ones some compositors report nothing until the inhibitor
/// ends, and in others a notification that was idle at its start stays idle while the user types.
/// Therefore each reading creates a second notification, the probe: a probe that does not become
/// idle beside an idle base reveals an inhibitor. Readings are then empty until a second without
/// input after its end. Main thread.
class WaylandIdleSource final : public IdleSource {
    Q_OBJECT

public:
    /// The longest time without a pause of one second; after it an inhibitor is assumed.
    static constexpr Seconds longestActivity{60.0};
    /// The age from which a probe counts: it becomes idle after one second.
    static constexpr Seconds probeCounts{1.5};

    /// Both must outlive this object.
    WaylandIdleSource(WaylandConnection& connection, const Clock& clock);
    ~WaylandIdleSource() override;

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override { return m_base != nullptr; }
    /// Told by notifications that stay silent. Those of version 2 of the notifier never do.
    [[nodiscard]] std::optional<bool> isInhibited() const override;

private:
    class Notification;
    using NotificationHandle = std::unique_ptr<Notification>;

    void choose();
    void release();
    void lose();
    void forget(std::uint32_t global);
    [[nodiscard]] NotificationHandle notification();
    void follow(Notification& base);
    void probe();

    WaylandConnection& m_connection;
    const Clock& m_clock;
    ext_idle_notifier_v1* m_notifier = nullptr;
    org_kde_kwin_idle* m_kde = nullptr;
    wl_seat* m_seat = nullptr;
    std::uint32_t m_seatName = 0, m_notifierName = 0;
    bool m_tellsInput = false; ///< despite inhibitors
    NotificationHandle m_base, m_probe;
    Seconds m_probeMadeAt{};
    bool m_isInhibited = false; ///< until the base is next idle
};

} // namespace vantle
