#include "surfaces/capsule/NotchMetrics.h"

#include "surfaces/capsule/CapsuleGeometry.h"

#include <algorithm>

namespace vantle {

namespace {

constexpr double kPlainNotchWidth = 230;
constexpr QSizeF kPlainCollapsedSize(198, 0.5);
constexpr double kPlainRadius = 18;
constexpr double kNotchRadius = 12;

} // namespace

bool NotchMetrics::hasHousing(const ScreenShape& screen) {
    return screen.safeAreaTop > 0 && screen.auxiliaryTopLeft && screen.auxiliaryTopRight &&
           screen.auxiliaryTopLeft->right() < screen.auxiliaryTopRight->left();
}

NotchMetrics NotchMetrics::of(const ScreenShape& screen, double extraContentHeight) {
    NotchMetrics metrics;
    metrics.hasNotch = hasHousing(screen);
    if (metrics.hasNotch) {
        const double left = screen.auxiliaryTopLeft->right();
        metrics.notchHeight = screen.safeAreaTop;
        metrics.notchWidth = screen.auxiliaryTopRight->left() - left;
        metrics.anchorCenterX = left + metrics.notchWidth * 0.5;
        metrics.collapsedSize = {metrics.notchWidth, metrics.notchHeight};
        metrics.bottomRadius = kNotchRadius;
    } else {
        metrics.notchWidth = kPlainNotchWidth;
        metrics.anchorCenterX = screen.frame.center().x();
        metrics.collapsedSize = kPlainCollapsedSize;
        metrics.bottomRadius = kPlainRadius;
        if (!screen.available.isEmpty())
            metrics.topBar = std::max(0.0, screen.available.top() - screen.frame.top());
    }
    metrics.capsuleHeight = extraContentHeight + metrics.notchHeight + capsule::kRowHeight;
    return metrics;
}

std::optional<std::size_t> NotchMetrics::chooseScreen(const std::vector<ScreenShape>& screens) {
    if (screens.empty()) return std::nullopt;
    const auto notched = std::find_if(screens.begin(), screens.end(), &hasHousing);
    return notched == screens.end() ? 0 : static_cast<std::size_t>(notched - screens.begin());
}

} // namespace vantle
