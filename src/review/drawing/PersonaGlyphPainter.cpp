#include "review/drawing/PersonaGlyphPainter.h"

#include "review/CardWords.h"
#include "review/PersonaCard.h"

#include <QFile>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vantle {

PersonaGlyph PersonaGlyph::of(const PersonaCard& card, const QImage& artwork) {
    return {card.symbol,   card.startColor,   card.endColor,  artwork,
            card.dotCount, card.sessionCount, card.activeDays};
}

namespace personaglyph {
namespace {

using cardwords::withOpacity;

// Lengths on a grid of 94 with the origin in its middle; the disc fills it.
constexpr double kGrid = 94;
constexpr double kDisc = 47; // radius
constexpr double kRim = 1;
constexpr double kSymbolSide = 58.88;

constexpr double kDot = 1.54; // radius
struct Ring {
    double radius;
    int room; // gives all rings the same dot spacing
    double opacity;
};
constexpr std::array kRings = {Ring{41.8, 46, 0.52}, Ring{37.4, 41, 0.38}, Ring{33.0, 36, 0.24}};
static_assert(kRings[0].room + kRings[1].room + kRings[2].room == mostDots);

constexpr double kArcRadius = 43;
constexpr double kArcWidth = 5;
constexpr double kArcSweep = 58; // degrees, without the round ends
constexpr QSizeF kBrick(19, 12);
constexpr double kBrickRadius = 3;
constexpr double kBrickGap = 4;

constexpr std::uint32_t kWhite = 0xFFFFFF;

QRectF around(QPointF center, double radius) {
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

void drawDisc(QPainter& painter, const PersonaGlyph& glyph) {
    if (!glyph.artwork.isNull()) {
        QPainterPath disc;
        disc.addEllipse({}, kDisc, kDisc);
        painter.save();
        painter.setClipPath(disc);
        painter.drawImage(around({}, kDisc), glyph.artwork);
        painter.restore();
        return;
    }
    const QRectF area = around({}, kDisc);
    QLinearGradient colors(area.left() + 0.15 * area.width(), area.top(),
                           area.left() + 0.85 * area.width(), area.bottom());
    colors.setColorAt(0, glyph.startColor);
    colors.setColorAt(1, glyph.endColor);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors);
    painter.drawEllipse(area);

    painter.setPen(QPen(withOpacity(kWhite, 0.28), kRim));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(around({}, kDisc - kRim / 2));
}

void drawSymbol(QPainter& painter, const QString& symbol) {
    const QString file = QStringLiteral(":/review/symbols/%1.svg").arg(symbol);
    if (QFile::exists(file)) QSvgRenderer(file).render(&painter, around({}, kSymbolSide / 2));
}

/// Draws hours clockwise from the top, ring by ring.
void drawHours(QPainter& painter, std::int64_t count) {
    painter.setPen(Qt::NoPen);
    for (const Ring& ring : kRings) {
        painter.setBrush(withOpacity(kWhite, ring.opacity));
        const auto dots = static_cast<int>(std::clamp<std::int64_t>(count, 0, ring.room));
        for (int i = 0; i < dots; ++i) {
            const double angle = 2 * std::numbers::pi * i / ring.room;
            const QPointF center(ring.radius * std::sin(angle), -ring.radius * std::cos(angle));
            painter.drawEllipse(center, kDot, kDot);
        }
        count -= dots;
    }
}

/// Draws an arc per session, clockwise from the top.
void drawSessions(QPainter& painter, int count) {
    using reviewcards::personaSessionsNeeded;
    constexpr double kStep = 360.0 / personaSessionsNeeded;
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < personaSessionsNeeded; ++i) {
        const QColor color =
            i < count ? QColor::fromRgb(cardwords::accent) : withOpacity(kWhite, 0.12);
        painter.setPen(QPen(color, kArcWidth, Qt::SolidLine, Qt::RoundCap));
        const double start = 90 - i * kStep - (kStep - kArcSweep) / 2;
        QPainterPath arc;
        arc.arcMoveTo(around({}, kArcRadius), start);
        arc.arcTo(around({}, kArcRadius), start, -kArcSweep);
        painter.drawPath(arc);
    }
}

/// Draws a brick per day, side by side.
void drawDays(QPainter& painter, int count) {
    using reviewcards::personaDaysNeeded;
    const double step = kBrick.width() + kBrickGap;
    QRectF brick({-(personaDaysNeeded * step - kBrickGap) / 2, -kBrick.height() / 2}, kBrick);
    for (int i = 0; i < personaDaysNeeded; ++i, brick.translate(step, 0)) {
        const bool done = i < count;
        painter.setPen(QPen(withOpacity(kWhite, done ? 0.28 : 0.12), kRim));
        painter.setBrush(done ? QColor::fromRgb(cardwords::accent) : withOpacity(kWhite, 0.08));
        painter.drawRoundedRect(brick, kBrickRadius, kBrickRadius);
    }
}

} // namespace

void draw(QPainter& painter, const QRectF& area, const PersonaGlyph& glyph) {
    const double scale = std::min(area.width(), area.height()) / kGrid;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(area.center());
    painter.scale(scale, scale);
    if (glyph.symbol.isEmpty()) {
        drawSessions(painter, glyph.sessionCount);
        drawDays(painter, glyph.activeDays);
    } else {
        drawDisc(painter, glyph);
        if (glyph.artwork.isNull()) {
            drawHours(painter, glyph.dotCount);
            drawSymbol(painter, glyph.symbol);
        }
    }
    painter.restore();
}

} // namespace personaglyph
} // namespace vantle
