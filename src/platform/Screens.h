// The screens, as far as surfaces are placed by them.
#pragma once

#include <QObject>
#include <QRectF>

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

/// Main thread, the signal included.
class Screens : public QObject {
    Q_OBJECT

public:
    /// The main screen first. Empty while nothing is connected.
    [[nodiscard]] virtual std::vector<ScreenShape> all() const = 0;

Q_SIGNALS:
    /// A screen came, went, moved or changed its size. Several in a row for one act of the person,
    /// with states between them that never were.
    void changed();
};

} // namespace vantle
