// The port of pictures over whole screens.
#pragma once

#include "platform/OverlayView.h"

#include <QRect>

#include <memory>
#include <vector>

namespace vantle {

/// An overlay that covers a screen until destroyed: borderless, translucent, no input, above all
/// other windows on every workspace, in no task bar. Disappears when its screen goes away or its
/// show ends. May be destroyed at any time, also from its own callback. Main thread.
class OverlayWindow {
public:
    virtual ~OverlayWindow() = default;
};

/// Puts views over screens. Main thread.
class OverlayStage {
public:
    virtual ~OverlayStage() = default;

    /// Whether it can show overlays that let input through. Otherwise nothing may be shown. May
    /// change at run time.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// The screens' frames; mirrored screens count once. In the stage's own pixels, which may
    /// differ from those of Screens.
    [[nodiscard]] virtual std::vector<QRect> frames() const = 0;

    /// Shows the view on the screen with that frame, and drives it. Never null: when the screen is
    /// gone or the window cannot be shown, nothing is visible.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& frame, std::unique_ptr<OverlayView> view) = 0;
};

} // namespace vantle
