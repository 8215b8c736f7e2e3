// Colours for the views: what ColorMath does.
#pragma once

#include "surfaces/kit/tokens/ColorMath.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

/// One for each QML engine. Main thread.
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
    /// The colour at that opacity.
    Q_INVOKABLE [[nodiscard]] static QColor alpha(const QColor& color, double opacity) {
        return colormath::withAlpha(color, opacity);
    }
    /// The colour moved towards white, by 0 to 1.
    Q_INVOKABLE [[nodiscard]] static QColor lightened(const QColor& color, double amount) {
        return colormath::glassLightened(color, amount);
    }
    /// Ink or white, whichever reads better on the colour.
    Q_INVOKABLE [[nodiscard]] static QColor inkOn(const QColor& fill) {
        return colormath::inkOn(fill);
    }
};

} // namespace vantle
