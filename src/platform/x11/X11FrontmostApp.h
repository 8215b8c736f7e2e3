// The application whose window the window manager calls active.
#pragma once

#include "platform/FrontmostApp.h"
#include "platform/WindowHints.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11WindowReader.h"

namespace vantle {

/// Follows _NET_ACTIVE_WINDOW on the root window; nothing is polled, and between switches it costs
/// nothing.
///
/// A window manager that says "none" is not believed: it does so for a moment at each switch, and
/// while a menu or one of our own cards has the keyboard; what was in front stays in front then. A
/// dock, the desktop and a window that vanished while it was read are no application: nothing is in
/// front. Only a change of application is told, not one of windows. Our own windows count as the
/// application `local.vantle.Vantle`. Without a window manager that keeps the property, and without
/// a server, nothing is in front.
class X11FrontmostApp final : public FrontmostApp {
    Q_OBJECT

public:
    /// `connection` must outlive this.
    X11FrontmostApp(X11Connection& connection, IdentityResolver resolve);

    /// As the server told it last; asks nobody.
    [[nodiscard]] std::optional<Application> frontmost() override { return m_application; }
    /// None without a window manager that keeps the property, else all.
    [[nodiscard]] AppCoverage coverage() const override { return m_coverage; }

private:
    void follow();
    void refresh();
    void refreshCoverage();
    void setCoverage(AppCoverage coverage);
    [[nodiscard]] std::optional<Application> applicationOf(xcb_window_t window);

    X11Connection& m_connection;
    X11WindowReader m_reader;
    const IdentityResolver m_resolve;
    std::optional<Application> m_application;
    AppCoverage m_coverage = AppCoverage::None;
    X11Connection::Subscription m_properties;
};

} // namespace vantle
