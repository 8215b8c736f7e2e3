// Where cards and the toast stand: in the top right corner, clear of its edges and of each other.
//
// Pure functions over rectangles in px of the desktop, y downwards. Any thread.
#pragma once

#include "platform/Placement.h"
#include "surfaces/kit/tokens/Look.h"

#include <QRect>
#include <QSize>

#include <vector>

namespace vantle::cardplacement {

inline constexpr int kCardWidth = look::kLengths.cardWidth;
inline constexpr int kRightInset = look::kLengths.cardRight;
inline constexpr int kTopInset = look::kLengths.cardTop;
inline constexpr int kToastGap = 12;       ///< between the toast and what stands above it
inline constexpr int kCornerDistance = 80; ///< what is as near to both edges is in the corner

/// How wide a card is: as designed, on a narrow screen as wide as leaves both insets free.
/// `visibleFrame` is the screen without the desktop's bars.
[[nodiscard]] int cardWidth(const QRect& visibleFrame);

/// A card of that size, without its shadow.
[[nodiscard]] Placement card(const ScreenShape& screen, const QSize& size);

/// A toast of that size: on the line of the cards, below those of `panels` that
/// stand in the corner.
[[nodiscard]] Placement toast(const ScreenShape& screen, const QSize& size,
                              const std::vector<QRect>& panels);

} // namespace vantle::cardplacement
