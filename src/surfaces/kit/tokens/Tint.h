// The colour functions for views; see ColorMath.h.
#pragma once

#include "surfaces/kit/tokens/ColorMath.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One per QML engine. Main thread.
class Tint : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Tint(QObject* parent = nullptr) : QObject(parent) {}

    /// The colour 0xRRGGBB.
    Q_INVOKABLE [[nodiscard]] static QColor fromHex(uint hexRGB) {
        return colormath::fromHex(hexRGB);
    }
    /// Returns the colour with that alpha.
    Q_INVOKABLE [[nodiscard]] static QColor alpha(const QColor& color, double opacity) {
        return colormath::withAlpha(color, opacity);
    }
    /// Blends the colour with white by 0 to 1.
    Q_INVOKABLE [[nodiscard]] static QColor lightened(const QColor& color, double amount) {
        return colormath::glassLightened(color, amount);
    }
    /// Returns ink or white, whichever is more legible on the colour.
    Q_INVOKABLE [[nodiscard]] static QColor inkOn(const QColor& fill) {
        return colormath::inkOn(fill);
    }
};

} // namespace vantle
