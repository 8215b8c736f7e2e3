// What every window over a whole screen has in common, whatever it shows.
#pragma once

#include <QRect>

#include <vector>

class QWindow;

namespace vantle {

class PanelHost;
class Screens;

namespace wholescreen {

/// The frames of the screens; those that mirror each other are one to look at. Main thread.
[[nodiscard]] std::vector<QRect> frames(const Screens& screens);

/// Whether a screen has that frame. Main thread.
[[nodiscard]] bool exists(const Screens& screens, const QRect& frame);

/// Makes a window, before it is shown, one that covers the screen with that frame and is in
/// nobody's way: above everything, see-through, without pointer and keyboard. Main thread.
void cover(QWindow& window, const QRect& frame, PanelHost& host);

} // namespace wholescreen
} // namespace vantle
