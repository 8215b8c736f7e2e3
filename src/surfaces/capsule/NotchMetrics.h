// The measured geometry of the place at the top of a screen that the capsule grows out of.
//
// Plain values and pure functions, any thread. Lengths in px.
#pragma once

#include "platform/Screens.h"

#include <QSizeF>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantle {

struct NotchMetrics {
    bool hasNotch = false;    ///< the screen has a camera housing
    double notchHeight = 0;   ///< the housing's height; 0 without one
    double notchWidth = 0;    ///< the housing's width, or that of the strip that stands in for it
    double topBar = 0;        ///< height of the desktop's bar at the top; 0 without one
    double anchorCenterX = 0; ///< of the capsule's centre, on the desktop
    double capsuleHeight = 0; ///< of the open capsule
    QSizeF collapsedSize;     ///< of the capsule at rest
    double bottomRadius = 0;  ///< of the capsule's corners

    /// For a screen and what the capsule holds below its row.
    [[nodiscard]] static NotchMetrics of(const ScreenShape& screen, double extraContentHeight);

    /// Whether the screen has a housing with free areas on both sides. A safe area alone says
    /// nothing: other things keep areas free as well.
    [[nodiscard]] static bool hasHousing(const ScreenShape& screen);

    /// The screen for the capsule: the first with a housing, else the main one, which comes first.
    /// Empty when there are no screens.
    [[nodiscard]] static std::optional<std::size_t>
    chooseScreen(const std::vector<ScreenShape>& screens);
};

} // namespace vantle
