// The application of the window manager's active window.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11WindowReader.h"

namespace vantle {

/// Follows _NET_ACTIVE_WINDOW on the root window, and on the active window its destruction and
/// identifying properties; there is no polling.
///
/// A window manager reports "none" briefly at each switch, so it counts once it has lasted
/// `noneIsBelievedAfter`. It reports it too while a card or panel of the program has the keyboard;
/// the previous application stays in front then. For docks, the desktop and windows that vanish
/// during the read, nothing is in front. Reports changes of application, not of windows. The
/// program's own windows count as `local.vantle.Vantle`. Without a server or a window manager that
/// sets the property nothing is in front. Beside a Wayland compositor the property covers X11
/// windows, and "none" stands for all others. Main thread.
class X11FrontmostApp final : public FrontmostApp {
    Q_OBJECT

public:
    static constexpr Seconds noneIsBelievedAfter{0.1};

    /// Both must outlive this object. `most` is the coverage with a window manager that sets the
    /// property.
    X11FrontmostApp(X11Connection& connection, Scheduler& scheduler, IdentityResolver resolve,
                    AppCoverage most = AppCoverage::All);

    /// Asks the server, which may be ahead of its events. One round trip, or a few after a change.
    [[nodiscard]] std::optional<Application> frontmost() override;
    /// None without a window manager that sets the property.
    [[nodiscard]] AppCoverage coverage() const override { return m_coverage; }

private:
    void follow();
    void followWindow(xcb_window_t window);
    void handleProperty(const xcb_property_notify_event_t& change);
    void refresh();
    void waitForNone();
    void adopt(std::optional<Application> application);
    void refreshCoverage();
    void setCoverage(AppCoverage coverage);
    [[nodiscard]] std::optional<Application> applicationOf(xcb_window_t window);
    [[nodiscard]] bool oursHasTheKeyboard();

    X11Connection& m_connection;
    Scheduler& m_scheduler;
    X11WindowReader m_reader;
    const IdentityResolver m_resolve;
    const AppCoverage m_most;
    std::optional<Application> m_application;
    AppCoverage m_coverage = AppCoverage::None;
    xcb_window_t m_window = XCB_NONE; ///< the active one, while followed
    TimerHandle m_none;               ///< runs while "none" does not count yet
    X11Connection::Subscription m_properties, m_ends;
};

} // namespace vantle
