#include "surfaces/cards/CardPlacement.h"

#include <algorithm>
#include <cstdlib>

namespace vantle::cardplacement {

namespace {

// QRect::right() and bottom() are the last pixels inside; edges are one further.
int rightEdge(const QRect& rect) { return rect.x() + rect.width(); }
int bottomEdge(const QRect& rect) { return rect.y() + rect.height(); }

bool isInCorner(const QRect& visibleFrame, const QRect& panel) {
    return panel.intersects(visibleFrame) &&
           std::abs(rightEdge(visibleFrame) - rightEdge(panel)) <= kCornerDistance &&
           std::abs(panel.y() - visibleFrame.y()) <= kCornerDistance;
}

} // namespace

int cardWidth(const QRect& visibleFrame) {
    return std::min(kCardWidth, visibleFrame.width() - 2 * kRightInset);
}

Placement card(const ScreenShape& screen, const QSize& size) {
    return {.spot = Placement::Spot::TopRight,
            .screen = screen,
            .size = size,
            .inset = {kRightInset, kTopInset}};
}

Placement toast(const ScreenShape& screen, const QSize& size, const std::vector<QRect>& panels) {
    const QRect visibleFrame = screen.available.toRect();
    Placement place = card(screen, size);
    for (const QRect& panel : panels)
        if (isInCorner(visibleFrame, panel))
            place.inset.setY(
                std::max(place.inset.y(), bottomEdge(panel) + kToastGap - visibleFrame.y()));
    return place;
}

} // namespace vantle::cardplacement
