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

QPoint card(const QRect& visibleFrame, const QSize& size) {
    return {rightEdge(visibleFrame) - size.width() - kRightInset, visibleFrame.y() + kTopInset};
}

QPoint toast(const QRect& visibleFrame, const QSize& size, const std::vector<QRect>& panels) {
    QPoint place = card(visibleFrame, size);
    for (const QRect& panel : panels)
        if (isInCorner(visibleFrame, panel))
            place.setY(std::max(place.y(), bottomEdge(panel) + kToastGap));
    return place;
}

} // namespace vantle::cardplacement
