// The common properties of windows that cover a screen.
#pragma once

#include <QRect>

#include <vector>

class QWindow;

namespace vantle {

class PanelHost;
class Screens;

namespace wholescreen {

/// Returns the screens' frames; mirrored screens count once. Main thread.
[[nodiscard]] std::vector<QRect> frames(const Screens& screens);

/// Whether a screen has that frame. Main thread.
[[nodiscard]] bool exists(const Screens& screens, const QRect& frame);

/// Prepares a window, before it is shown, to cover the screen with that frame: above everything,
/// translucent, without input. Main thread.
void cover(QWindow& window, const QRect& frame, PanelHost& host);

} // namespace wholescreen
} // namespace vantle
