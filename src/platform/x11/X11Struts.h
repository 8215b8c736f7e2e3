// The strips that bars on an X server reserve, by EWMH.
#pragma once

#include "platform/ReservedStrips.h"
#include "platform/x11/X11Connection.h"

#include <xcb/xcb.h>

#include <array>
#include <optional>
#include <span>

namespace vantle {

/// Looks at the windows themselves, so it needs no window manager that adds the strips up: at the
/// managed ones, and at the children of the root window, among which are the bars of window
/// managers that draw their own. A bar that is not on the screen reserves nothing.
///
/// A question takes three round trips. A bar that comes is noticed when the list of the managed
/// windows changes; one outside that list at the next question.
class X11Struts final : public ReservedStrips {
    Q_OBJECT

public:
    /// `x11` must outlive this.
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
    [[nodiscard]] std::vector<ReservedStrip> stripsOf(std::span<const std::uint32_t> numbers) const;
    void follow(const std::vector<Bar>& bars);

    X11Connection& m_x11;
    std::array<xcb_atom_t, AtomCount> m_atoms{};
    QSize m_desktop;                   ///< of the root window
    std::vector<xcb_window_t> m_bars;  ///< those that had strips last, on the screen or not
    std::vector<ReservedStrip> m_last; ///< what was told last
    std::vector<X11Connection::Subscription> m_events;
};

} // namespace vantle
