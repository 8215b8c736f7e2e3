#include "surfaces/capsule/CapsuleGeometry.h"

#include <algorithm>
#include <cmath>

namespace vantle::capsule {

namespace {

constexpr double kMinWidth = 340;
constexpr double kMaxBeyondNotch = 260;
constexpr double kPanelSides = 48;
constexpr double kPanelBelow = 24;
constexpr double kLineSlack = 4; // measured and drawn widths differ slightly
constexpr double kStripBelowNotch = 6;
constexpr double kStripOnPlainScreen = 10;

constexpr double kChipsExtra = 14;
constexpr double kAddRowExtra = 45;
constexpr double kChipsTop = 6;
constexpr double kBelowChips = 8;
constexpr double kAddRowBelowChips = 53;

} // namespace

double Content::extraHeight() const {
    if (!chips) return 0;
    return kChipsExtra + chips->height() + (showAddRow ? kAddRowExtra : 0);
}

double Content::rowViewHeight() const {
    if (!chips) return kRowHeight;
    return kRowHeight + chips->height() + kChipsTop +
           (showAddRow ? kAddRowBelowChips : kBelowChips);
}

double lineWidth(double measured) { return std::ceil(measured) + kLineSlack; }

double requiredCapsuleWidth(const NotchMetrics& metrics, double skillLineWidth, double clockWidth,
                            const Content& content) {
    const double texts = std::max(clockWidth, skillLineWidth + kDotDiameter + kDotGap);
    const double row = texts + kRowInset + kStopGap + kStopChipSize + kRowInset;
    const double chips = content.chips ? content.chips->width() + 2 * kRowInset : 0;
    return std::max({row, chips, kMinWidth, metrics.notchWidth});
}

QSizeF panelSize(const NotchMetrics& metrics) {
    return {metrics.notchWidth + kMaxBeyondNotch + kPanelSides,
            metrics.topBar + metrics.capsuleHeight + kPanelBelow};
}

QRectF panelFrame(const NotchMetrics& metrics, const ScreenShape& screen) {
    const QSizeF size = panelSize(metrics);
    const double left = std::floor(metrics.anchorCenterX - size.width() * 0.5);
    return {QPointF(left, screen.frame.top()), size};
}

Placement placement(const NotchMetrics& metrics, const ScreenShape& screen) {
    const QRect frame = panelFrame(metrics, screen).toAlignedRect();
    Placement placement{.spot = Placement::Spot::TopCenter, .screen = screen, .size = frame.size()};
    // A camera housing may be off-centre.
    placement.inset = frame.topLeft() - placement.ground().topLeft();
    return placement;
}

QRectF openFrame(const NotchMetrics& metrics, double requiredWidth) {
    const double want =
        std::min(std::max(metrics.notchWidth, requiredWidth), metrics.notchWidth + kMaxBeyondNotch);
    const double width = 2 * std::ceil(want * 0.5);
    const double left = std::floor((panelSize(metrics).width() - width) * 0.5); // whole pixels
    return {left, metrics.topBar, width, metrics.capsuleHeight};
}

QRectF restingFrame(const NotchMetrics& metrics) {
    const double x = (panelSize(metrics).width() - metrics.collapsedSize.width()) * 0.5;
    return {QPointF(x, metrics.topBar), metrics.collapsedSize};
}

QRectF hoverStrip(const NotchMetrics& metrics) {
    const double height =
        metrics.hasNotch ? metrics.notchHeight + kStripBelowNotch : kStripOnPlainScreen;
    return {(panelSize(metrics).width() - metrics.notchWidth) * 0.5, 0, metrics.notchWidth, height};
}

QRectF hoverRect(const NotchMetrics& metrics, const std::optional<QRectF>& open) {
    const QRectF strip = hoverStrip(metrics);
    return open ? strip.united(*open) : strip;
}

} // namespace vantle::capsule
