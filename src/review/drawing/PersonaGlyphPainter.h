// The picture of a kind of builder: a disc in its two colours with its symbol, and a dot for each
// finished hour along the rim. Until there is a kind, what has come together for one so far.
//
// Pure drawing, any thread, at any scale.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <cstdint>

class QPainter;
class QRectF;

namespace vantle {

struct PersonaCard;

struct PersonaGlyph {
    QString symbol;    ///< "moon.fill"; empty while the kind is taking shape
    QColor startColor; ///< of the disc, at its upper left
    QColor endColor;
    QImage artwork;            ///< stands in the disc's place; null for none
    std::int64_t dotCount = 0; ///< finished hours
    int sessionCount = 0;      ///< of the sessions that a kind needs
    int activeDays = 0;        ///< of the days that a kind needs

    [[nodiscard]] static PersonaGlyph of(const PersonaCard& card, const QImage& artwork = {});
    friend bool operator==(const PersonaGlyph&, const PersonaGlyph&) = default;
};

namespace personaglyph {

/// As many dots have room along the rim; more are not drawn.
inline constexpr int mostDots = 46 + 41 + 36;

/// Fits the picture into the middle of `area`. An unknown symbol leaves the disc without one.
void draw(QPainter& painter, const QRectF& area, const PersonaGlyph& glyph);

} // namespace personaglyph
} // namespace vantle
