// What every overlay window has in common, whatever it shows.
#pragma once

#include <QRect>

class QScreen;
class QWindow;

namespace vantle::overlayscreens {

/// The first screen with that frame; null where it is gone. Main thread.
[[nodiscard]] QScreen* withFrame(const QRect& frame);

/// Makes a window, before it is shown, one that covers the screen and is in nobody's way: without
/// borders, above everything, deaf to pointer and keyboard. Main thread.
void cover(QWindow& window, QScreen& screen);

} // namespace vantle::overlayscreens
