// The placement of the command center.
//
// Pure functions, any thread; px of the desktop, y downwards.
#pragma once

#include "platform/Placement.h"

#include <QPoint>
#include <QRect>
#include <QSize>

namespace vantle::commandcenterplacement {

/// What is known about the tray item.
struct Anchor {
    QRect item;   ///< empty where unknown
    QPoint click; ///< (0, 0) where unknown
};

/// Returns the placement of a panel of that size: below or above the tray item, else at the click,
/// else in the first screen's top right corner. Always inside a screen's available area and at most
/// as high. An item outside all screens counts as unknown. Requires a screen.
[[nodiscard]] Placement place(const QSize& size, const Anchor& anchor,
                              const std::vector<ScreenShape>& screens);

/// Returns the largest height of the panel there.
[[nodiscard]] int maximumHeight(const Anchor& anchor, const std::vector<ScreenShape>& screens);

} // namespace vantle::commandcenterplacement
