// The time without input, from a Wayland compositor.
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

/// By `ext_idle_notifier_v1`, or the older `org_kde_kwin_idle`. Neither has a counter: the
/// compositor tells when there was no input for a second, and the first input after it.
///
/// A film, a call or a presentation holds the session awake (an idle inhibitor). From version 2 of
/// the notifier on, input is told all the same. Before, compositors differ: some tell nothing more
/// until the inhibitor ends, and in others a notification that was idle when it began stays idle
/// while the user types. So a second notification, the probe, is made at each reading: one
/// that does not become idle beside an idle one shows an inhibitor. Then readings are empty, until
/// there was a second without input after its end.
class WaylandIdleSource final : public IdleSource {
    Q_OBJECT

public:
    /// Without one second's pause in this long, an inhibitor is taken to hold. Users pause.
    static constexpr Seconds longestActivity{60.0};
    /// How old a probe must be to count: it becomes idle after a second.
    static constexpr Seconds probeCounts{1.5};

    /// Both must outlive this.
    WaylandIdleSource(WaylandConnection& connection, const Clock& clock);
    ~WaylandIdleSource() override;

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] bool canTell() const override { return m_base != nullptr; }

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
    bool m_tellsInput = false; ///< whatever inhibits
    NotificationHandle m_base, m_probe;
    Seconds m_probeMadeAt{};
    bool m_isInhibited = false; ///< until the base is idle next
};

} // namespace vantle
