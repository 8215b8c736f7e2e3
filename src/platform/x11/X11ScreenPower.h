// Display sleep as the X server knows it.
#pragma once

#include "base/Scheduler.h"
#include "platform/CausedScreenPower.h"
#include "platform/x11/X11Connection.h"

#include <functional>

namespace vantle {

/// Asleep while the power management holds the displays below "on", the server's screen saver
/// shows, or xscreensaver says on the root window that it has blanked or locked the screen. What
/// the server holds at the start counts at once. Where it lacks an extension, that cause never
/// holds; a server that goes away wakes the screens.
class X11ScreenPower final : public CausedScreenPower {
    Q_OBJECT

public:
    /// Whether the displays are in any other power level than "on". None where it can't be told.
    using DisplaysOff = std::function<bool()>;

    /// The power management extension of that server; empty where it is missing.
    [[nodiscard]] static DisplaysOff powerManagement(X11Connection& connection);

    /// The power level is polled, since this version of the extension has no events for it. Both
    /// references must outlive this.
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
