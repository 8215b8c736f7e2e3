// The title pill and the caption as pictures. Need a QGuiApplication; any thread.
#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace vantle::ceremonytext {

struct TextImage {
    QImage image;      ///< two pixels a point, premultiplied; null when there is nothing to show
    QSizeF size{0, 0}; ///< points; 0 x 0 when there is nothing to show
};

/// White text on a dark pill with a fine edge, as large as suits a screen of that width in points.
[[nodiscard]] TextImage titleImage(const QString& title, double screenWidth);

/// A small white line on nothing.
[[nodiscard]] TextImage captionImage(const QString& caption);

} // namespace vantle::ceremonytext
