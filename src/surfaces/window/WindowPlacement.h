// Where windows stand. Pure functions, any thread; px of the desktop, y downwards.
#pragma once

#include "platform/Screens.h"

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>

namespace vantle::windowplacement {

/// The size, made to fit into the area.
[[nodiscard]] QSize fitted(const QSize& size, const QRectF& area);

/// A frame of that size in the middle of the area.
[[nodiscard]] QRect centred(const QSize& size, const QRectF& area);

/// The frame, moved and shrunk into the free area of the screen that shows most of it. None when no
/// screen shows any of it.
[[nodiscard]] std::optional<QRect> onScreen(const QRect& frame,
                                            const std::vector<ScreenShape>& screens);

/// The frame after a hand has dragged those edges of it that far, within its least and its greatest
/// size; without any edges the whole frame.
[[nodiscard]] QRect dragged(const QRect& frame, Qt::Edges edges, const QPoint& by,
                            const QSize& least, const QSize& greatest);

/// A frame as it stands in the preferences, "x y width height", and back. None for anything else.
[[nodiscard]] QString encode(const QRect& frame);
[[nodiscard]] std::optional<QRect> decode(const QString& text);

} // namespace vantle::windowplacement
