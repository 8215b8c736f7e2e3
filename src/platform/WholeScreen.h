// What every overlay window has in common, whatever it shows.
#pragma once

#include <QRect>

class QScreen;
class QWindow;

namespace vantle {
class PanelHost;
}

namespace vantle::wholescreen {

/// The first screen with that frame; null where it is gone. Main thread.
[[nodiscard]] QScreen* withFrame(const QRect& frame);

/// Makes a window, before it is shown, one that covers the screen and is in nobody's way: above
/// everything, see-through, without pointer and keyboard. Main thread.
void cover(QWindow& window, const QScreen& screen, PanelHost& host);

} // namespace vantle::wholescreen
