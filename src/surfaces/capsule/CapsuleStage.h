// The interface from a capsule to its window.
#pragma once

#include <QRectF>

namespace vantle {

/// Positions in px from the top left of the capsule's panel. Main thread.
class CapsuleStage {
public:
    virtual ~CapsuleStage() = default;

    /// Whether the pointer is in that part of the panel. False without a window.
    [[nodiscard]] virtual bool pointerInside(const QRectF& part) const = 0;

    /// Called before the capsule opens, so that its view stands closed and can show the opening.
    virtual void prepare() = 0;

    /// Updates input area and overlay from the capsule's state.
    virtual void follow() = 0;

    virtual void takeKeyboard() = 0;
    virtual void returnKeyboard() = 0;
};

} // namespace vantle
