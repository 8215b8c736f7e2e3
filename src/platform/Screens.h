// The screens, as far as surfaces are placed by them.
#pragma once

#include <QObject>
#include <QRectF>

#include <algorithm>
#include <optional>
#include <vector>

namespace vantle {

/// One screen. In px of the desktop, y downwards.
struct ScreenShape {
    QRectF frame;     ///< all of it
    QRectF available; ///< without bars and docks
    /// Height of the strip at the top that a camera housing takes; 0 where there is none.
    double safeAreaTop = 0;
    /// What is left of that strip on both sides of the housing.
    std::optional<QRectF> auxiliaryTopLeft = {};
    std::optional<QRectF> auxiliaryTopRight = {};
};

/// The screens, that of the frame first, the others as they were. As they were without such a one.
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
    /// The main screen first. Empty while nothing is connected.
    [[nodiscard]] virtual std::vector<ScreenShape> all() const = 0;

    /// The same, but the screen that the user is at first: the one with the pointer, where that is
    /// known.
    [[nodiscard]] virtual std::vector<ScreenShape> inUseFirst() const = 0;

Q_SIGNALS:
    /// A screen came, went, moved or changed its size, or a bar its strip. Several in a row for one
    /// act of the person, with states between them that never were.
    void changed();
};

} // namespace vantle
