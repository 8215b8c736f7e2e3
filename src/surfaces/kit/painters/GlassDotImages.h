// Glass dots that were drawn once, to be drawn again a thousand times.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

class QPainter;

namespace vantle {

/// Bakes each colour and radius once per scale. Used by one thread at a time.
class GlassDotImages {
public:
    /// A filled dot, or with an invalid colour a socket. The dot's centre is the image's; the image
    /// carries its scale as its device pixel ratio.
    [[nodiscard]] const QImage& image(const QColor& color, double radius, double scale);

    /// Draws a dot at `center`, moved by less than a device pixel to where the image stays sharp.
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
