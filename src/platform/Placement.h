// Where a floating surface stands on its screen, and what of it feels the pointer.
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

/// A plain value that a PanelHost makes a window of. A surface says which edge it keeps to, not
/// only where that is: a display server that places windows by edges and margins needs no more.
/// Pixels are those of Screens.
struct Placement {
    enum class Spot {
        TopCenter,   ///< at the middle of the screen's top edge, bars or not
        TopRight,    ///< in that corner of the area free of bars
        Beside,      ///< under `anchor`, over it in the lower half of the screen
        WholeScreen, ///< over all of it, bars too; for the eye alone
    };

    Spot spot = Spot::TopRight;
    ScreenShape screen = {};
    QSize size = {};    ///< of what the user sees; ignored for WholeScreen
    QPoint inset = {};  ///< from the edges; for TopCenter, x is to the right of the middle
    QRectF anchor = {}; ///< for Beside: the tray item, or the place of the click
    int gap = 0;        ///< for Beside: between the anchor and the surface
    QMargins room = {}; ///< of the window around what the user sees, for its shadow

    /// What feels the pointer, in px from the window's top left; empty: all of it.
    std::optional<QRegion> felt = {};
    /// What is drawn where nothing can be see-through; an empty region: all of it.
    QRegion opaque = {};
    bool takesKeyboard = false; ///< once it is shown

    /// What the user sees of it, without its shadow. In px of the desktop.
    [[nodiscard]] QRect ground() const;
    /// The same with its shadow.
    [[nodiscard]] QRect frame() const { return ground().marginsAdded(room); }
};

} // namespace vantle
