// Where the capsule and its parts lie: widths, frames and the part that feels the pointer.
//
// Pure functions, any thread. Lengths in px; places from the top left of the capsule's panel, whose
// top edge is that of the screen.
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

/// Heights of what lies below the row.
struct Content {
    std::optional<QSizeF> chips; ///< size of the chips; empty when there are none
    bool showAddRow = false;     ///< below chips only

    /// What it adds to the capsule's height.
    [[nodiscard]] double extraHeight() const;
    /// Height of the view inside the capsule that holds row and content.
    [[nodiscard]] double rowViewHeight() const;
};

/// The width that a line of text takes, from its measured width.
[[nodiscard]] double lineWidth(double measured);

/// The width at which everything has room, from the widths of the skill line and the clock.
[[nodiscard]] double requiredCapsuleWidth(const NotchMetrics& metrics, double skillLineWidth,
                                          double clockWidth, const Content& content);

/// Size of the capsule's panel.
[[nodiscard]] QSizeF panelSize(const NotchMetrics& metrics);
/// Frame of the panel on the desktop.
[[nodiscard]] QRectF panelFrame(const NotchMetrics& metrics, const ScreenShape& screen);
/// The same as a placement, at the top of its screen.
[[nodiscard]] Placement placement(const NotchMetrics& metrics, const ScreenShape& screen);

/// The open capsule, which is never wider than the panel leaves room for, and of an even width. It
/// stands below the desktop's bar, if there is one.
[[nodiscard]] QRectF openFrame(const NotchMetrics& metrics, double requiredWidth);
/// The capsule at rest, flush with the top or the bar there.
[[nodiscard]] QRectF restingFrame(const NotchMetrics& metrics);

/// The strip at the screen's edge, over a bar too, that feels the pointer while the capsule rests.
[[nodiscard]] QRectF hoverStrip(const NotchMetrics& metrics);
/// The part that feels the pointer: the strip, and the capsule when it is open, with what is
/// between them.
[[nodiscard]] QRectF hoverRect(const NotchMetrics& metrics, const std::optional<QRectF>& open);

} // namespace vantle::capsule
