// The two font families of the type scale, or their substitutes.
//
// Main thread; requires the application object. Queries the machine's fonts once.
#pragma once

#include "surfaces/kit/tokens/Look.h"

#include <QFont>
#include <QString>

namespace vantle {

struct Typeface {
    QString family;
    /// Extra tracking in em: a text family is wider than a display family and is set tighter in its
    /// place.
    double tracking = 0.0;

    /// For text up to 15 px.
    [[nodiscard]] static const Typeface& text();
    /// For titles and figures from 15 px on.
    [[nodiscard]] static const Typeface& display();
};

/// Returns the font of a type scale step.
[[nodiscard]] QFont fontOf(const look::TypeStep& step);

} // namespace vantle
