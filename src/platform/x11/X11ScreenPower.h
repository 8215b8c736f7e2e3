// The sleep of the displays on an X server.
#pragma once

#include "base/Scheduler.h"
#include "platform/CausedScreenPower.h"
#include "platform/x11/X11Connection.h"

#include <functional>

namespace vantle {

/// Asleep while DPMS holds the displays below "on", the server's screen saver is active, or
/// xscreensaver's root window property says blanked or locked. The state at construction counts. A
/// missing extension never holds; a lost server wakes the screens. Main thread.
class X11ScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// Whether the displays are in a power level other than "on". An empty function means unknown.
    using DisplaysOff = std::function<bool()>;

    /// Returns the server's DPMS extension; empty when missing.
    [[nodiscard]] static DisplaysOff powerManagement(X11Connection& connection);

    /// Polls the power level, since this version of DPMS has no events. Both references must
    /// outlive this object.
    X11ScreenPower(X11Connection& connection, Scheduler& scheduler, DisplaysOff displaysOff);

private:
    void followScreenSaver();
    void followStatus();
    void readStatus();

    X11Connection& m_connection;
    DisplaysOff m_displaysOff;
    TimerHandle m_poll;
    X11Connection::Subscription m_screenSaver;
    xcb_atom_t m_statusAtom = XCB_ATOM_NONE;
    X11Connection::Subscription m_properties;
};

} // namespace vantle
