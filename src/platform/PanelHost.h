// The port of floating panels.
#pragma once

#include "platform/Placement.h"

#include <QObject>
#include <QRegion>
#include <QWindow>

#include <functional>
#include <memory>

namespace vantle {

/// An invisible part of the screen that is watched for the pointer, until destroyed.
class PointerSensor {
public:
    virtual ~PointerSensor() = default;
};

/// Panels float above other windows: only a part of one takes pointer input, and none has the
/// keyboard unless the user types into it. The bodies here are those of a desktop without these
/// features. Requires created windows. Main thread.
class PanelHost : public QObject {
    Q_OBJECT

public:
    /// Whether windows can be translucent. A compositor may come and go.
    [[nodiscard]] virtual bool isComposited() { return true; }

    /// Whether setInputRegion() works. Otherwise a window takes every press over it, visible or
    /// not, so it must not be larger than its input area. Constant.
    [[nodiscard]] virtual bool hasInputRegions() const { return true; }

    /// Whether the pointer's position is known over other applications' windows. Otherwise only
    /// entering and leaving a window are reliable. Constant.
    [[nodiscard]] virtual bool tellsPointer() const { return true; }

    /// Places the window, or moves it. The first call, before showing, chooses the kind of window
    /// and creates it; showing it gives it no keyboard focus. Without input regions the window is
    /// cut to its input area, else to what is drawn. Returns the part of the placement's frame that
    /// it covers, in px of that frame.
    virtual QRect place(QWindow& window, const Placement& placement);

    /// The pointer's position in px from the window's top left. Where tellsPointer() is false,
    /// valid only while the pointer is over the window.
    [[nodiscard]] virtual QPoint pointerIn(const QWindow& window) const;

    /// Limits pointer input to a part of the window, in px from its top left; the rest lets input
    /// through. An empty region lets all through. Set it again after the window was placed, shown
    /// or resized.
    virtual void setInputRegion(QWindow&, const QRegion&) {}

    /// Calls `rested` once per visit when the pointer rests in that area of a placement (px from
    /// the top left of its ground()), never inside this call. Needs no window there; presses go to
    /// what lies below. A press or drag in the area cancels the visit. A server that cannot report
    /// this calls on arrival and takes the presses. Null where unsupported. Must not outlive the
    /// host.
    [[nodiscard]] virtual std::unique_ptr<PointerSensor>
    senseAt(const Placement& /*panel*/, const QRect& /*part*/, std::function<void()> /*rested*/) {
        return nullptr;
    }

    /// Moves keyboard focus to the window and remembers the previous owner. Has no effect when the
    /// window has it.
    virtual void takeKeyboard(QWindow&) {}

    /// Returns the focus to its previous owner, or to the application in front when that is gone.
    /// Has no effect when the window lost it already.
    virtual void returnKeyboard(QWindow&) {}

Q_SIGNALS:
    /// isComposited() changed.
    void compositedChanged();

protected:
    /// Window flags for such a placement, on any display.
    [[nodiscard]] virtual Qt::WindowFlags flagsFor(const Placement& placement) const;
};

} // namespace vantle
