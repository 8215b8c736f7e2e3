// The port of the screens' geometry.
#pragma once

#include <QObject>
#include <QRectF>

#include <algorithm>
#include <optional>
#include <vector>

namespace vantle {

/// One screen, in px of the desktop, y downwards.
struct ScreenShape {
    QRectF frame;     ///< all of it
    QRectF available; ///< without bars
    /// Height of the top strip beside a camera housing; 0 without one.
    double safeAreaTop = 0;
    /// The parts of that strip on both sides of the housing.
    std::optional<QRectF> auxiliaryTopLeft = {};
    std::optional<QRectF> auxiliaryTopRight = {};
};

/// Returns the screens with the one of that frame first; unchanged when there is none.
[[nodiscard]] inline std::vector<ScreenShape> startingWith(const QRectF& frame,
                                                           std::vector<ScreenShape> screens) {
    const auto found = std::ranges::find(screens, frame, &ScreenShape::frame);
    if (found != screens.end()) std::rotate(screens.begin(), found, found + 1);
    return screens;
}

/// Main thread, the signal included.
class Screens : public QObject {
    Q_OBJECT

public:
    /// The main screen first. Empty while none is connected.
    [[nodiscard]] virtual std::vector<ScreenShape> all() const = 0;

    /// The same with the screen in use first: that of the pointer, where known.
    [[nodiscard]] virtual std::vector<ScreenShape> inUseFirst() const = 0;

Q_SIGNALS:
    /// A screen was added, removed, moved or resized, or a bar changed. One act of the user may
    /// emit it several times, with transient states in between.
    void changed();
};

} // namespace vantle
