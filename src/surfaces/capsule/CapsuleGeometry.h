// The geometry of the capsule: widths, frames, input area.
//
// Pure functions, any thread. Lengths in px, relative to the top left of the capsule's panel, whose
// top edge is the screen's.
#pragma once

#include "platform/Placement.h"
#include "surfaces/capsule/NotchMetrics.h"
#include "surfaces/kit/tokens/Look.h"

#include <QRectF>

#include <optional>

namespace vantle::capsule {

inline constexpr double kRowHeight = look::kLengths.capsuleRowHeight;
inline constexpr double kDotDiameter = look::kLengths.chipDotSize;
inline constexpr double kDotGap = look::kLengths.space8;
inline constexpr double kRowInset = look::kLengths.capsuleInset;
inline constexpr double kStopChipSize = look::kLengths.capsuleChipSize;
inline constexpr double kStopGap = 16;
inline constexpr double kMaxChipRowWidth = 420;

/// The content below the row.
struct Content {
    std::optional<QSizeF> chips; ///< empty without chips
    bool showAddRow = false;     ///< only together with chips

    /// The height that it adds to the capsule.
    [[nodiscard]] double extraHeight() const;
    /// The height of the view with row and content.
    [[nodiscard]] double rowViewHeight() const;
};

/// The width of a line of text, from its measured width.
[[nodiscard]] double lineWidth(double measured);

/// The width that fits everything, from the widths of skill line and clock.
[[nodiscard]] double requiredCapsuleWidth(const NotchMetrics& metrics, double skillLineWidth,
                                          double clockWidth, const Content& content);

/// Size of the capsule's panel.
[[nodiscard]] QSizeF panelSize(const NotchMetrics& metrics);
/// Frame of the panel on the desktop.
[[nodiscard]] QRectF panelFrame(const NotchMetrics& metrics, const ScreenShape& screen);
/// The panel's placement at the top of its screen.
[[nodiscard]] Placement placement(const NotchMetrics& metrics, const ScreenShape& screen);

/// The open capsule: of even width, at most as wide as the panel allows, below the desktop's bar if
/// there is one.
[[nodiscard]] QRectF openFrame(const NotchMetrics& metrics, double requiredWidth);
/// The resting capsule, at the top or at the bar there.
[[nodiscard]] QRectF restingFrame(const NotchMetrics& metrics);

/// The strip at the screen's edge, over a bar too, that reacts to the pointer while the capsule
/// rests.
[[nodiscard]] QRectF hoverStrip(const NotchMetrics& metrics);
/// The input area: the strip, and while open the capsule and the area between them.
[[nodiscard]] QRectF hoverRect(const NotchMetrics& metrics, const std::optional<QRectF>& open);

} // namespace vantle::capsule
