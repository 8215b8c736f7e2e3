// The geometry of windows.
//
// Pure functions, any thread; px of the desktop, y downwards.
#pragma once

#include "platform/Screens.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

namespace vantle::windowplacement {

/// Returns the size reduced to fit into the area.
[[nodiscard]] QSize fitted(const QSize& size, const QRectF& area);

/// Returns a frame of that size centred in the area.
[[nodiscard]] QRect centred(const QSize& size, const QRectF& area);

/// Returns the frame moved and reduced into the available area of the screen that shows most of it;
/// empty when no screen shows it.
[[nodiscard]] std::optional<QRect> onScreen(const QRect& frame,
                                            const std::vector<ScreenShape>& screens);

/// Returns the frame after its edges were dragged by that distance, within the size limits; without
/// edges, after the whole frame was.
[[nodiscard]] QRect dragged(const QRect& frame, Qt::Edges edges, const QPoint& by,
                            const QSize& least, const QSize& greatest);

/// Converts a frame to its stored form, "x y width height", and back; empty for invalid text.
[[nodiscard]] QString encode(const QRect& frame);
[[nodiscard]] std::optional<QRect> decode(const QString& text);

} // namespace vantle::windowplacement
