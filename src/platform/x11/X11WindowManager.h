// The window manager of an X server, by EWMH.
#pragma once

#include "platform/WindowManager.h"
#include "platform/x11/X11Connection.h"

#include <QPointer>

#include <xcb/xcb.h>

#include <array>
#include <optional>
#include <vector>

namespace vantle {

/// Messages about a window use Qt's connection, so that they follow the window's creation; without
/// one (another platform, a lost display) none are sent. Main thread.
///
/// Follows a window manager that comes, goes or is replaced by its properties on the root window
/// and by its own window.
class X11WindowManager final : public WindowManager {
    Q_OBJECT

public:
    /// `x11` serves requests that are not about windows. It must outlive this object.
    explicit X11WindowManager(X11Connection& x11);

    [[nodiscard]] bool canMinimise() const override { return m_canMinimise; }
    void bringToUser(QWindow& window) override;

private:
    enum Atom : std::size_t {
        Supported,
        SupportingCheck,
        Name,
        StateHidden,
        ActionMinimise,
        ActiveWindow,
        CurrentDesktop,
        DesktopOfWindow,
        AtomCount
    };

    void refresh();
    void handleProperty(const xcb_property_notify_event_t& change);
    [[nodiscard]] bool isThere();
    [[nodiscard]] bool servesMinimise();
    [[nodiscard]] std::vector<std::uint32_t> numbers(xcb_window_t window, Atom name);
    void moveToCurrentDesktop(xcb_window_t window);
    void askForTime();
    void activate(xcb_timestamp_t time);
    void send(xcb_window_t window, Atom name, const std::array<std::uint32_t, 5>& data);

    X11Connection& m_x11;
    std::array<xcb_atom_t, AtomCount> m_atoms{};
    xcb_window_t m_check = XCB_NONE; ///< the window manager's own window
    xcb_window_t m_clock = XCB_NONE; ///< a window whose property changes return the server's time
    std::vector<std::uint32_t> m_supported;
    bool m_canMinimise = false;
    QPointer<QWindow> m_activated; ///< waits for the server's time
    X11Connection::Subscription m_properties;
    X11Connection::Subscription m_ends;
};

} // namespace vantle
