// Parts of the screen that are watched for the pointer, on an X server.
#pragma once

#include "base/Scheduler.h"
#include "platform/PanelHost.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11RawPresses.h"

#include <xcb/sync.h>

#include <optional>

namespace vantle {

/// The server's counter of the time without input from the pointer, keys not included.
struct X11PointerIdle {
    xcb_sync_counter_t counter = XCB_NONE;
    std::uint8_t alarmEvent = 0; ///< type of the event that an alarm on it sends

    /// Empty when the server has none, or none by device. A few round trips.
    [[nodiscard]] static std::optional<X11PointerIdle> of(X11Connection& x11,
                                                          X11RawPresses& presses);
};

/// Calls when the pointer has been still for `rest` in that part, without a window there: presses
/// and drags go to what lies there. While the pointer rests elsewhere nothing runs. An alarm tells
/// of the first input after a rest; from then on the server is asked once every `rest`, until the
/// pointer rests again. Unlike events of motion that costs the same at any rate of a mouse, and
/// sees a pointer that another program has moved, too.
///
/// A visit in which a button is down calls nothing. Nor does one while another application has
/// grabbed the pointer, as menus and screen lockers do.
class X11RestSensor final : public PointerSensor {
public:
    static constexpr Seconds rest{0.3};

    /// `part` in px of the device. All must outlive the sensor.
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
    bool m_isInside = false; ///< at the last look
    bool m_isDone = false;   ///< this visit of the pointer has called, or was for what lies there
    TimerHandle m_next;      ///< while the pointer does not rest
    X11Connection::Subscription m_alarms;
    std::unique_ptr<X11RawPresses::Watch> m_presses;
};

/// An unmanaged window without a picture, for servers that don't count. It calls at each arrival,
/// and takes the presses.
class X11WindowSensor final : public PointerSensor {
public:
    /// `part` in px of the device. `x11` must outlive the sensor.
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
