// The geometry of the place at the top of the screen.
//
// The capsule grows out of it. Plain values and pure functions, any thread. Lengths in px.
#pragma once

#include "platform/Screens.h"

#include <QSizeF>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantle {

struct NotchMetrics {
    bool hasNotch = false;    ///< the screen has a camera housing
    double notchHeight = 0;   ///< 0 without a housing
    double notchWidth = 0;    ///< of the housing, or of the strip that replaces it
    double topBar = 0;        ///< height of the desktop's top bar; 0 without one
    double anchorCenterX = 0; ///< centre of the capsule, on the desktop
    double capsuleHeight = 0; ///< of the open capsule
    QSizeF collapsedSize;     ///< of the capsule at rest
    double bottomRadius = 0;  ///< of the capsule's corners

    /// Measures a screen for the given content below the row.
    [[nodiscard]] static NotchMetrics of(const ScreenShape& screen, double extraContentHeight);

    /// Whether the screen has a housing with free areas on both sides. A safe area alone is no
    /// proof, since other things reserve areas too.
    [[nodiscard]] static bool hasHousing(const ScreenShape& screen);

    /// Returns the index of the first screen with a housing, else of the main one, which is first;
    /// empty without screens.
    [[nodiscard]] static std::optional<std::size_t>
    chooseScreen(const std::vector<ScreenShape>& screens);
};

} // namespace vantle
