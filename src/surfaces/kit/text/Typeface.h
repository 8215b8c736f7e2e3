// The two families of the type scale, or what stands in for them on this machine.
//
// Main thread, after the application object. The fonts of the machine are asked once.
#pragma once

#include "surfaces/kit/tokens/Look.h"

#include <QFont>
#include <QString>

namespace vantle {

struct Typeface {
    QString family;
    /// What it needs beside the tracking of a role, in em: a text family is drawn wider than a
    /// display family, and is set closer where it has to stand in for one.
    double tracking = 0.0;

    /// For text up to 15 px.
    [[nodiscard]] static const Typeface& text();
    /// For titles and figures from 15 px upwards.
    [[nodiscard]] static const Typeface& display();
};

/// The font of a step of the type scale.
[[nodiscard]] QFont fontOf(const look::TypeStep& step);

} // namespace vantle
