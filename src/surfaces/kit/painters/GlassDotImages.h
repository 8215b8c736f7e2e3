// The cache of glass dot images.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

class QPainter;

namespace vantle {

/// One image per colour, radius and scale. One thread at a time.
class GlassDotImages {
public:
    /// Returns a filled dot, or a socket for an invalid colour. The dot is centred; the image has
    /// its scale as device pixel ratio.
    [[nodiscard]] const QImage& image(const QColor& color, double radius, double scale);

    /// Draws a dot at `center`, snapped to device pixels for sharpness.
    void draw(QPainter& painter, QPointF center, const QColor& color, double radius, double scale);

    [[nodiscard]] qsizetype size() const { return m_images.size(); }

private:
    struct Key {
        QRgb color;
        bool filled;
        double radius;
        double scale;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.color, key.filled, key.radius, key.scale);
        }
    };

    QHash<Key, QImage> m_images;
};

} // namespace vantle
