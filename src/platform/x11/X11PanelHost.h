// Floating panels on an X server.
#pragma once

#include "platform/PanelHost.h"

#include <xcb/xcb.h>

#include <map>

namespace vantle {

class X11Connection;

/// Requests about a window go over Qt's own connection, so that they reach the server in order with
/// Qt's; without one (another platform, a lost display) they do nothing. Input regions need the
/// shape extension: without it a panel feels the pointer everywhere.
class X11PanelHost final : public PanelHost {
public:
    /// `x11` answers what is not about a window. It must outlive this.
    explicit X11PanelHost(X11Connection& x11) : m_x11(x11) {}

    [[nodiscard]] bool isComposited() override;
    void setInputRegion(QWindow& window, const QRegion& region) override;
    [[nodiscard]] std::unique_ptr<PointerSensor> senseAt(const QRect& part,
                                                         std::function<void()> entered) override;
    void takeKeyboard(QWindow& window) override;
    void returnKeyboard(QWindow& window) override;

private:
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name);
    [[nodiscard]] xcb_window_t activeWindow();

    X11Connection& m_x11;
    xcb_atom_t m_compositor = XCB_ATOM_NONE; ///< selection that a compositor owns; once looked up
    std::map<WId, xcb_window_t> m_before;    ///< who had the keyboard before a window took it
};

} // namespace vantle
