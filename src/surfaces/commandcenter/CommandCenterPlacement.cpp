#include "surfaces/commandcenter/CommandCenterPlacement.h"

#include "surfaces/kit/tokens/Look.h"

#include <algorithm>
#include <optional>

namespace vantle::commandcenterplacement {

namespace {

constexpr int kEdge = look::kLengths.panelEdge;       // to the available area's edges
constexpr int kItemGap = look::kLengths.panelItemGap; // between tray item and panel
// To the right edge, when the item's place is unknown.
constexpr int kCornerGap = look::kLengths.panelCorner;

struct Target {
    QRectF item; ///< or the click, when only that is known
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

} // namespace

Placement place(const QSize& size, const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    const auto found = target(anchor, screens);
    Placement placement{.screen = found ? found->screen : screens.front(), .takesKeyboard = true};
    const int highest = qRound(placement.screen.available.height()) - 2 * kEdge;
    placement.size = {size.width(), std::min(size.height(), highest)};
    if (found) {
        placement.spot = Placement::Spot::Beside;
        placement.anchor = found->item;
        placement.gap = kItemGap;
        placement.inset = {kEdge, kEdge};
    } else {
        placement.spot = Placement::Spot::TopRight;
        placement.inset = {kCornerGap, kEdge};
    }
    return placement;
}

int maximumHeight(const Anchor& anchor, const std::vector<ScreenShape>& screens) {
    return place(QSize(1, 1 << 20), anchor, screens).size.height();
}

} // namespace vantle::commandcenterplacement
