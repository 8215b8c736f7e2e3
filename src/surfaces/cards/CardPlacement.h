// The placement of cards and toast in the top right corner.
//
// They keep clear of the edges and of each other. Pure functions; px of the desktop, y downwards.
// Any thread.
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
inline constexpr int kToastGap = 12;       ///< between the toast and the panel above it
inline constexpr int kCornerDistance = 80; ///< a panel this close to both edges is in the corner

/// Returns a card's width: the designed one, or on a narrow screen what both insets leave.
/// `visibleFrame` excludes the desktop's bars.
[[nodiscard]] int cardWidth(const QRect& visibleFrame);

/// Returns the placement of a card of that size, without its shadow.
[[nodiscard]] Placement card(const ScreenShape& screen, const QSize& size);

/// Returns the placement of a toast of that size: level with the cards, below those of `panels` in
/// the corner.
[[nodiscard]] Placement toast(const ScreenShape& screen, const QSize& size,
                              const std::vector<QRect>& panels);

} // namespace vantle::cardplacement
