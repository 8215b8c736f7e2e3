// The images of the title pill and the caption.
//
// Require a QGuiApplication; any thread.
#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace vantle::ceremonytext {

struct TextImage {
    QImage image;      ///< two pixels per point, premultiplied; null when empty
    QSizeF size{0, 0}; ///< points; 0 x 0 when empty
};

/// Draws white text on a dark pill with a fine edge, sized for a screen of that width in points.
[[nodiscard]] TextImage titleImage(const QString& title, double screenWidth);

/// Draws a small white line without background.
[[nodiscard]] TextImage captionImage(const QString& caption);

} // namespace vantle::ceremonytext
