#include "platform/wayland/WaylandIdleSource.h"

#include <ext-idle-notify-v1-client-protocol.h>
#include <kde-idle-client-protocol.h>
#include <utility>
#include <wayland-client.h>

namespace vantle {

namespace {

constexpr std::uint32_t kTimeoutMs =
    static_cast<std::uint32_t>(IdleEvents::shortWhile.count() * 1000);
constexpr std::uint32_t kInputVersion = 2; ///< the notifier version that reports input

} // namespace

/// One idle notification, in either protocol.
class WaylandIdleSource::Notification {
public:
    Notification(const Clock& clock, ext_idle_notification_v1* proxy)
        : events(clock)
        , m_ext(proxy) {
        static constexpr ext_idle_notification_v1_listener kListener{
            .idled = [](void* data, ext_idle_notification_v1*) { of(data).idled(); },
            .resumed = [](void* data, ext_idle_notification_v1*) { of(data).resumed(); }};
        ext_idle_notification_v1_add_listener(proxy, &kListener, this);
    }
    Notification(const Clock& clock, org_kde_kwin_idle_timeout* proxy)
        : events(clock)
        , m_kde(proxy) {
        static constexpr org_kde_kwin_idle_timeout_listener kListener{
            .idle = [](void* data, org_kde_kwin_idle_timeout*) { of(data).idled(); },
            .resumed = [](void* data, org_kde_kwin_idle_timeout*) { of(data).resumed(); }};
        org_kde_kwin_idle_timeout_add_listener(proxy, &kListener, this);
    }
    ~Notification() {
        if (m_ext != nullptr) ext_idle_notification_v1_destroy(m_ext);
        if (m_kde != nullptr) org_kde_kwin_idle_timeout_release(m_kde);
    }
    Notification(const Notification&) = delete;
    Notification& operator=(const Notification&) = delete;

    IdleEvents events;
    std::function<void()> onIdled, onResumed;

private:
    static Notification& of(void* data) { return *static_cast<Notification*>(data); }
    void idled() {
        events.idled();
        if (onIdled) onIdled();
    }
    void resumed() {
        events.resumed();
        if (onResumed) onResumed();
    }

    ext_idle_notification_v1* m_ext = nullptr;
    org_kde_kwin_idle_timeout* m_kde = nullptr;
};

WaylandIdleSource::WaylandIdleSource(WaylandConnection& connection, const Clock& clock)
    : m_connection(connection)
    , m_clock(clock) {
    connect(&m_connection, &WaylandConnection::ready, this, &WaylandIdleSource::choose);
    connect(&m_connection, &WaylandConnection::added, this, &WaylandIdleSource::choose);
    connect(&m_connection, &WaylandConnection::removed, this, &WaylandIdleSource::forget);
    connect(&m_connection, &WaylandConnection::broken, this, &WaylandIdleSource::lose);
    choose();
}

WaylandIdleSource::~WaylandIdleSource() { release(); }

void WaylandIdleSource::choose() {
    if (m_base || !m_connection.isReady()) return;
    const auto seat = m_connection.global(wl_seat_interface.name);
    const auto notifier = m_connection.global(ext_idle_notifier_v1_interface.name);
    const auto kde = m_connection.global(org_kde_kwin_idle_interface.name);
    if (!seat || (!notifier && !kde)) return;
    m_seat = m_connection.bind<wl_seat>(*seat, wl_seat_interface, 1);
    m_seatName = seat->name;
    m_notifierName = notifier ? notifier->name : kde->name;
    if (notifier)
        m_notifier = m_connection.bind<ext_idle_notifier_v1>(
            *notifier, ext_idle_notifier_v1_interface, kInputVersion);
    else
        m_kde = m_connection.bind<org_kde_kwin_idle>(*kde, org_kde_kwin_idle_interface, 1);
    m_tellsInput = notifier && notifier->version >= kInputVersion;
    m_base = notification();
    follow(*m_base);
    m_connection.flush();
    Q_EMIT canTellChanged();
}

void WaylandIdleSource::forget(std::uint32_t global) {
    if (!m_base || (global != m_seatName && global != m_notifierName)) return;
    lose();
    choose(); // another seat, or the other protocol
}

void WaylandIdleSource::lose() {
    const bool could = canTell();
    release();
    if (could) Q_EMIT canTellChanged();
}

void WaylandIdleSource::release() {
    m_probe.reset();
    m_base.reset();
    m_isInhibited = false;
    if (m_notifier != nullptr) ext_idle_notifier_v1_destroy(std::exchange(m_notifier, nullptr));
    if (m_kde != nullptr) org_kde_kwin_idle_destroy(std::exchange(m_kde, nullptr));
    if (m_seat != nullptr) wl_seat_destroy(std::exchange(m_seat, nullptr));
}

WaylandIdleSource::NotificationHandle WaylandIdleSource::notification() {
    if (m_kde != nullptr)
        return std::make_unique<Notification>(
            m_clock, org_kde_kwin_idle_get_idle_timeout(m_kde, m_seat, kTimeoutMs));
    return std::make_unique<Notification>(
        m_clock,
        m_tellsInput
            ? ext_idle_notifier_v1_get_input_idle_notification(m_notifier, kTimeoutMs, m_seat)
            : ext_idle_notifier_v1_get_idle_notification(m_notifier, kTimeoutMs, m_seat));
}

void WaylandIdleSource::follow(Notification& base) {
    base.onIdled = [this] {
        m_isInhibited = false;
        if (!m_tellsInput) probe();
    };
    base.onResumed = [this] { m_probe.reset(); };
}

void WaylandIdleSource::probe() {
    m_probe = notification();
    m_probeMadeAt = m_clock.uptime().awake;
    m_connection.flush();
}

std::optional<bool> WaylandIdleSource::isInhibited() const {
    if (!m_base || m_tellsInput) return std::nullopt;
    return !m_base->events.isIdle() &&
           (m_isInhibited || m_base->events.sinceLastEvent() > longestActivity);
}

std::optional<double> WaylandIdleSource::secondsSinceLastInput() {
    if (!m_base) return std::nullopt;
    IdleEvents& events = m_base->events;
    if (m_tellsInput) return events.secondsSinceLastInput();
    if (!events.isIdle()) {
        if (isInhibited().value_or(false)) return std::nullopt;
        return events.secondsSinceLastInput();
    }
    if (m_clock.uptime().awake - m_probeMadeAt < probeCounts) {
        // Idle by its first event, or by the probe before this one.
        return events.secondsSinceLastInput();
    }
    if (m_probe->events.isIdle()) {
        probe();
        return events.secondsSinceLastInput();
    }
    // After the inhibitor the old base would report no input since before it.
    m_base = std::move(m_probe);
    follow(*m_base);
    m_isInhibited = true;
    m_connection.flush();
    return std::nullopt;
}

} // namespace vantle
