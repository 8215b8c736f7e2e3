// How pictures come over whole screens.
#pragma once

#include "platform/OverlayView.h"

#include <QRect>

#include <memory>
#include <vector>

namespace vantle {

/// Something that is over a screen until it is destroyed: without borders, see-through, without
/// pointer and keyboard, above all other windows on every workspace, in no task bar. It vanishes by
/// itself when its screen goes away or its show is over. Main thread. It may be destroyed at any
/// time, also while it reports something.
class OverlayWindow {
public:
    virtual ~OverlayWindow() = default;
};

/// Puts views over screens. Main thread.
class OverlayStage {
public:
    virtual ~OverlayStage() = default;

    /// Whether it can show anything that lets presses and keys through to what lies below. Where it
    /// can't, nothing may be put up. May change while the program runs.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// The screens as they are now, each by its frame; screens that mirror each other are one. In
    /// px of the stage's own, which need not be those of Screens.
    [[nodiscard]] virtual std::vector<QRect> frames() const = 0;

    /// Shows the view over the screen with that frame, and drives it. Never null: where the screen
    /// is gone, or the desktop can't show such a window, there is just nothing to see.
    [[nodiscard]] virtual std::unique_ptr<OverlayWindow>
    putUp(const QRect& frame, std::unique_ptr<OverlayView> view) = 0;
};

} // namespace vantle
