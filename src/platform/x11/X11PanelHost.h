// The host of floating panels on an X server.
#pragma once

#include "platform/PanelHost.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11PointerSensor.h"
#include "platform/x11/X11RawPresses.h"
#include "platform/x11/XwaylandTraits.h"

#include <xcb/xcb.h>

#include <map>

namespace vantle {

/// Requests about windows use Qt's connection, to stay in order with Qt's; without one (another
/// platform, a lost display) they have no effect. Input regions need the shape extension; without
/// it a panel takes input everywhere.
///
/// A compositor owns a selection, and the server reports its owner. Beside a Wayland compositor
/// windows are always translucent; a panel gets the keyboard by its window type and a grab, and is
/// mapped again to change either way. Tried with sway 1.7. Main thread.
class X11PanelHost final : public PanelHost {
    Q_OBJECT

public:
    /// `x11` serves requests that are not about windows. All must outlive this object.
    X11PanelHost(X11Connection& x11, Scheduler& scheduler, X11RawPresses& presses,
                 const XwaylandTraits& xwayland = {});

    [[nodiscard]] bool isComposited() override { return m_composited; }
    [[nodiscard]] bool hasInputRegions() const override { return m_xwayland.passesInputRegions; }
    [[nodiscard]] bool tellsPointer() const override { return !m_xwayland.isXwayland; }
    QRect place(QWindow& window, const Placement& placement) override;
    void setInputRegion(QWindow& window, const QRegion& region) override;
    [[nodiscard]] std::unique_ptr<PointerSensor> senseAt(const Placement& panel, const QRect& part,
                                                         std::function<void()> rested) override;
    void takeKeyboard(QWindow& window) override;
    void returnKeyboard(QWindow& window) override;

protected:
    [[nodiscard]] Qt::WindowFlags flagsFor(const Placement& placement) const override;

private:
    void followCompositor();
    void setComposited(bool composited);
    void setType(QWindow& window, const QByteArray& name);
    void takeKeyboardFromCompositor(QWindow& window);
    void returnKeyboardToCompositor(QWindow& window);
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name);
    [[nodiscard]] xcb_window_t activeWindow();

    X11Connection& m_x11;
    Scheduler& m_scheduler;
    X11RawPresses& m_presses;
    const XwaylandTraits m_xwayland;
    bool m_composited = false;
    bool m_pointerIdleIsKnown = false; ///< whether the server was asked
    std::optional<X11PointerIdle> m_pointerIdle;
    X11Connection::Subscription m_compositorChanges;
    std::map<WId, xcb_window_t> m_before; ///< the focus owner before each window took the keyboard
};

} // namespace vantle
