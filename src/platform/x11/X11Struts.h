// The screen edges reserved by bars, by EWMH struts.
#pragma once

#include "platform/ReservedStrips.h"
#include "platform/x11/X11Connection.h"

#include <QSize>

#include <xcb/xcb.h>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace vantle {

/// Returns the strips that a window's strut reserves on a desktop of that size, in device pixels:
/// 12 numbers with the begin and end of each strip, or at least 4 without. Limited to the desktop,
/// whatever the numbers are. Pure; any thread.
[[nodiscard]] std::vector<ReservedStrip> stripsOf(std::span<const std::uint32_t> numbers,
                                                  const QSize& desktop);

/// Examines the windows themselves, so it needs no window manager that sums struts up: managed
/// windows, and children of the root window, among them the bars of window managers that draw their
/// own. An unmapped bar reserves nothing.
///
/// A query takes three round trips. A new bar is noticed when the client list changes; one outside
/// that list at the next query. Main thread.
class X11Struts final : public ReservedStrips {
    Q_OBJECT

public:
    /// `x11` must outlive this object.
    explicit X11Struts(X11Connection& x11);

    [[nodiscard]] std::vector<ReservedStrip> all() override;

private:
    enum Atom : std::size_t { Partial, Whole, ClientList, AtomCount };
    struct Bar {
        xcb_window_t window = XCB_NONE;
        std::vector<ReservedStrip> strips;
    };

    void handleProperty(const xcb_property_notify_event_t& change);
    void handleWindow(xcb_window_t window);
    void refresh();
    [[nodiscard]] std::vector<xcb_window_t> windows();
    [[nodiscard]] std::vector<Bar> barsAmong(const std::vector<xcb_window_t>& windows);
    void follow(const std::vector<Bar>& bars);

    X11Connection& m_x11;
    std::array<xcb_atom_t, AtomCount> m_atoms{};
    QSize m_desktop;                   ///< of the root window
    std::vector<xcb_window_t> m_bars;  ///< windows that had struts last, mapped or not
    std::vector<ReservedStrip> m_last; ///< as reported last
    std::vector<X11Connection::Subscription> m_events;
};

} // namespace vantle
