#include "surfaces/commandcenter/CommandCenterPlacement.h"

#include "surfaces/kit/tokens/Look.h"

#include <algorithm>
#include <optional>

namespace vantle::commandcenterplacement {

namespace {

constexpr double kEdge = look::kLengths.panelEdge; // clear space to the edges of the free area
constexpr double kItemGap = look::kLengths.panelItemGap; // between the tray item and the panel
constexpr double kCornerGap =
    look::kLengths.panelCorner; // to the right edge, where nothing is known

struct Target {
    QRectF item; ///< may be a single point
    ScreenShape screen;
};

std::optional<Target> on(const QRectF& item, const std::vector<ScreenShape>& screens) {
    for (const ScreenShape& screen : screens)
        if (screen.frame.intersects(item)) return Target{item, screen};
    return std::nullopt;
}

std::optional<Target> target(const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    if (!anchor.item.isEmpty())
        if (auto found = on(anchor.item, screens)) return found;
    if (anchor.click.isNull()) return std::nullopt;
    return on(QRectF(anchor.click - QPointF(0.5, 0.5), QSizeF(1, 1)), screens);
}

/// The lower bound wins where both can't hold.
double within(double value, double low, double high) {
    return std::max(low, std::min(value, high));
}

} // namespace

QRect place(const QSize& size, const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    if (screens.empty()) return {};
    const auto found = target(anchor, screens);
    const QRectF area = found ? found->screen.available : screens.front().available;
    const double height = std::min<double>(size.height(), area.height() - 2 * kEdge);
    const double highest = area.top() + kEdge;
    const double lowest = area.bottom() - kEdge - height;
    double x = area.right() - size.width() - kCornerGap;
    double y = highest;
    if (found) {
        x = within(found->item.center().x() - size.width() / 2.0, area.left() + kEdge,
                   area.right() - size.width() - kEdge);
        // A bar may lie at either end of the screen.
        const bool below = found->item.center().y() < found->screen.frame.center().y();
        y = within(below ? found->item.bottom() + kItemGap : found->item.top() - kItemGap - height,
                   highest, lowest);
    }
    return {qRound(x), qRound(y), size.width(), qRound(height)};
}

int maximumHeight(const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    return place(QSize(1, 1 << 20), anchor, screens).height();
}

} // namespace vantle::commandcenterplacement
