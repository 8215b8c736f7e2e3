// Where the command center stands. Pure functions, any thread; px of the desktop, y downwards.
#pragma once

#include "platform/Placement.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace vantle::commandcenterplacement {

/// What is known of the tray item.
struct Anchor {
    QRect item;   ///< empty where the desktop does not tell
    QPoint click; ///< where it was clicked; (0, 0) where that is not known either
};

/// The panel of that size: under or over the tray item, else by the place of the click, else in the
/// top right corner of the first screen; never over the edge of a screen's free area, and no higher
/// than it. An item that no screen shows counts as unknown. Requires a screen.
[[nodiscard]] Placement place(const QSize& size, const Anchor& anchor,
                              const std::vector<ScreenShape>& screens);

/// The height that the panel may have at most, there.
[[nodiscard]] int maximumHeight(const Anchor& anchor, const std::vector<ScreenShape>& screens);

} // namespace vantle::commandcenterplacement
