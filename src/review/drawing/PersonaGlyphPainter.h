// The picture of a persona: gradient disc, symbol, dots for hours.
//
// Before there is a persona it shows the progress towards one. Pure drawing, any thread, any scale.
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
    QString symbol;    ///< "moon.fill"; empty before there is a persona
    QColor startColor; ///< of the disc, upper left
    QColor endColor;
    QImage artwork;            ///< replaces the disc; null for none
    std::int64_t dotCount = 0; ///< finished hours
    int sessionCount = 0;      ///< of those a persona needs
    int activeDays = 0;        ///< of those a persona needs

    [[nodiscard]] static PersonaGlyph of(const PersonaCard& card, const QImage& artwork = {});
    friend bool operator==(const PersonaGlyph&, const PersonaGlyph&) = default;
};

namespace personaglyph {

/// The dots that fit the rim; further hours are not drawn.
inline constexpr int mostDots = 46 + 41 + 36;

/// Centres the picture in `area`. An unknown symbol is left out.
void draw(QPainter& painter, const QRectF& area, const PersonaGlyph& glyph);

} // namespace personaglyph
} // namespace vantle
