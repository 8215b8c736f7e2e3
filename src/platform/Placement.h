// The place and the input area of a floating surface.
#pragma once

#include "platform/Screens.h"

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QRectF>
#include <QRegion>
#include <QSize>

#include <optional>

namespace vantle {

/// A plain value for PanelHost. It names the edge that the surface keeps to, which is all that a
/// display server with edges and margins needs. In pixels of Screens. Any thread.
struct Placement {
    enum class Spot {
        TopCenter,   ///< centred at the screen's top edge, ignoring bars
        TopRight,    ///< in that corner of the area without bars
        Beside,      ///< below `anchor`, or above it in the lower half of the screen
        WholeScreen, ///< all of it, bars included; takes no input
    };

    Spot spot = Spot::TopRight;
    ScreenShape screen = {};
    QSize size = {};    ///< of the visible part; ignored for WholeScreen
    QPoint inset = {};  ///< from the edges; for TopCenter, x from the middle to the right
    QRectF anchor = {}; ///< for Beside: the tray item, or the click position
    int gap = 0;        ///< for Beside: distance from the anchor
    QMargins room = {}; ///< margins around the visible part, for its shadow

    /// The input area in px from the window's top left; empty means all of it.
    std::optional<QRegion> felt = {};
    /// What is drawn without a compositor; an empty region means all of it.
    QRegion opaque = {};
    bool takesKeyboard = false; ///< once it is shown

    /// The visible part without its shadow, in px of the desktop.
    [[nodiscard]] QRect ground() const;
    /// The visible part with its shadow.
    [[nodiscard]] QRect frame() const { return ground().marginsAdded(room); }
};

} // namespace vantle
