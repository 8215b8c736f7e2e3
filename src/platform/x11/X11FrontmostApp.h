// The application whose window the window manager calls active.
#pragma once

#include "base/Scheduler.h"
#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11WindowReader.h"

namespace vantle {

/// Follows _NET_ACTIVE_WINDOW on the root window, and on the active window its end and the
/// properties that tell whose it is; nothing is polled.
///
/// A window manager says "none" for a moment at each switch, so it is believed once it has lasted
/// `noneIsBelievedAfter`. It says so, too, while a card or panel of ours has the keyboard; what was
/// in front stays in front then. A dock, the desktop and a window that vanished while it was read
/// are no application: nothing is in front. Only a change of application is told, not one of
/// windows. Our own windows count as the application `local.vantle.Vantle`. Without a window
/// manager that keeps the property, and without a server, nothing is in front. Beside a Wayland
/// compositor that is the property of its X11 windows, and "none" stands for each other one.
class X11FrontmostApp final : public FrontmostApp {
    Q_OBJECT

public:
    static constexpr Seconds noneIsBelievedAfter{0.1};

    /// Both must outlive this. `most` is what a window manager can tell here that keeps the
    /// property.
    X11FrontmostApp(X11Connection& connection, Scheduler& scheduler, IdentityResolver resolve,
                    AppCoverage most = AppCoverage::All);

    /// Asks the server, which may know better than what it has told up to now. One round trip, a
    /// few where it does.
    [[nodiscard]] std::optional<Application> frontmost() override;
    /// None without a window manager that keeps the property.
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
    xcb_window_t m_window = XCB_NONE; ///< the active one while it is followed
    TimerHandle m_none;               ///< while "none" is not believed yet
    X11Connection::Subscription m_properties, m_ends;
};

} // namespace vantle
