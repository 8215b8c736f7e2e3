// Frames of shows as they look over a desktop.
#pragma once

#include "ceremony/show/CeremonyFrameRenderer.h"
#include "ceremony/show/CeremonyVariant.h"

#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

namespace vantle {

/// Returns a dark desktop with edges and light parts.
[[nodiscard]] QImage darkDesktop(QSize size);

/// Returns a show with a fixed seed. Sizes in points.
[[nodiscard]] CeremonyFrameRenderer demoShow(CeremonyVariant variant, QSizeF size,
                                             const QString& skill);

/// Returns the frame at `t` seconds over that desktop, one pixel a point.
[[nodiscard]] QImage showFrame(CeremonyFrameRenderer& renderer, double t);

} // namespace vantle
