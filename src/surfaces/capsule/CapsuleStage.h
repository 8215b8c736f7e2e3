// What a capsule asks of the window that it lies in.
#pragma once

#include <QRectF>

namespace vantle {

/// Main thread. Places are px from the top left of the capsule's panel.
class CapsuleStage {
public:
    virtual ~CapsuleStage() = default;

    /// Whether the pointer is in that part of the panel. False while there is no window.
    [[nodiscard]] virtual bool pointerInside(const QRectF& part) const = 0;

    /// Follows what the capsule says of itself: the part that feels the pointer, and its overlay.
    virtual void follow() = 0;

    virtual void takeKeyboard() = 0;
    virtual void returnKeyboard() = 0;
};

} // namespace vantle
