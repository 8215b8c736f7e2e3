// The pointer sensors on an X server.
#pragma once

#include "base/Scheduler.h"
#include "platform/PanelHost.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11RawPresses.h"

#include <xcb/sync.h>

#include <optional>

namespace vantle {

/// The server's idle counter of the pointer, without keys.
struct X11PointerIdle {
    xcb_sync_counter_t counter = XCB_NONE;
    std::uint8_t alarmEvent = 0; ///< event type of its alarms

    /// Returns the counter; empty when the server has none per device. A few round trips.
    [[nodiscard]] static std::optional<X11PointerIdle> of(X11Connection& x11,
                                                          X11RawPresses& presses);
};

/// Calls back when the pointer has rested for `rest` in that part, without a window: presses and
/// drags reach what lies below. Costs nothing while the pointer rests elsewhere. An alarm reports
/// the first movement after a rest; from then on the server is queried every `rest`, until the
/// pointer rests again. Unlike motion events that costs the same for any mouse, and sees a pointer
/// moved by a program.
///
/// A visit with a button down is skipped, and so is one while another client grabs the pointer, as
/// menus and screen lockers do. Main thread.
class X11RestSensor final : public PointerSensor {
public:
    static constexpr Seconds rest{0.3};

    /// `part` in device px. All must outlive the sensor.
    X11RestSensor(X11Connection& x11, Scheduler& scheduler, X11RawPresses& presses,
                  const X11PointerIdle& idle, const QRect& part, std::function<void()> rested);
    ~X11RestSensor() override;
    X11RestSensor(const X11RestSensor&) = delete;
    X11RestSensor& operator=(const X11RestSensor&) = delete;

private:
    void makeAlarm();
    void look(bool isPressed);
    [[nodiscard]] bool isGrabbed();

    X11Connection& m_x11;
    Scheduler& m_scheduler;
    const X11PointerIdle m_idle;
    const QRect m_part;
    const std::function<void()> m_rested;
    const xcb_sync_alarm_t m_alarm;
    const xcb_window_t m_unmapped; ///< to try a grab on
    bool m_isInside = false;       ///< at the last query
    bool m_isDone = false;         ///< this visit called back, or was skipped
    TimerHandle m_next;            ///< runs while the pointer moves
    X11Connection::Subscription m_alarms;
    std::unique_ptr<X11RawPresses::Watch> m_presses;
};

/// An invisible override-redirect window, for servers without the counter. Calls back on each
/// arrival, and takes presses. Main thread.
class X11WindowSensor final : public PointerSensor {
public:
    /// `part` in device px. `x11` must outlive the sensor.
    X11WindowSensor(X11Connection& x11, const QRect& part, std::function<void()> entered);
    ~X11WindowSensor() override;
    X11WindowSensor(const X11WindowSensor&) = delete;
    X11WindowSensor& operator=(const X11WindowSensor&) = delete;

private:
    X11Connection& m_x11;
    const xcb_window_t m_window;
    X11Connection::Subscription m_entered;
};

} // namespace vantle
