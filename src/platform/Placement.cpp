#include "platform/Placement.h"

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

/// The lower bound wins when both cannot hold.
double within(double value, double low, double high) {
    return std::max(low, std::min(value, high));
}

QPointF topLeftBeside(const Placement& placement) {
    const QRectF& area = placement.screen.available;
    const QRectF& anchor = placement.anchor;
    const double width = placement.size.width();
    const double height = placement.size.height();
    const double x = within(anchor.center().x() - width / 2.0, area.left() + placement.inset.x(),
                            area.right() - width - placement.inset.x());
    // A bar may be at either end of the screen.
    const bool below = anchor.center().y() < placement.screen.frame.center().y();
    const double y =
        below ? anchor.bottom() + placement.gap : anchor.top() - placement.gap - height;
    return {x, within(y, area.top() + placement.inset.y(),
                      area.bottom() - placement.inset.y() - height)};
}

QPointF topLeft(const Placement& placement) {
    const QRectF& frame = placement.screen.frame;
    const QRectF& area = placement.screen.available;
    switch (placement.spot) {
    case Placement::Spot::TopCenter:
        return {std::floor(frame.center().x() - placement.size.width() / 2.0) + placement.inset.x(),
                frame.top() + placement.inset.y()};
    case Placement::Spot::TopRight:
        return {area.right() - placement.size.width() - placement.inset.x(),
                area.top() + placement.inset.y()};
    case Placement::Spot::Beside:
        return topLeftBeside(placement);
    case Placement::Spot::WholeScreen:
        break;
    }
    return frame.topLeft();
}

} // namespace

QRect Placement::ground() const {
    if (spot == Spot::WholeScreen) return screen.frame.toRect();
    const QPointF place = topLeft(*this);
    return {QPoint(qRound(place.x()), qRound(place.y())), size};
}

} // namespace vantle
