#include "review/drawing/PersonaGlyphPainter.h"

#include "review/PersonaCard.h"
#include "review/drawing/Drawn.h"
#include "review/stats/BuilderPersona.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>

namespace vantle::personaglyph {
namespace {

constexpr double kSide = 94;
constexpr double kScale = 4;
const QColor kGround(0x0A, 0x0A, 0x0F);
const QColor kAccent(0x7A, 0x78, 0xFF);

const QStringList& names() {
    static const QStringList names = [] {
        using namespace builderpersona;
        std::set<QString> all;
        for (const auto when : allDayParts)
            for (const auto style : allStyles)
                for (const auto focus : allFocuses)
                    all.insert(name(when, style, focus));
        return QStringList(all.begin(), all.end());
    }();
    return names;
}

PersonaGlyph glyphOf(const QString& name) {
    const auto colors = builderpersona::gradient(name);
    PersonaGlyph glyph;
    glyph.symbol = builderpersona::symbol(name);
    glyph.startColor = QColor::fromRgb(colors.start);
    glyph.endColor = QColor::fromRgb(colors.end);
    return glyph;
}

QImage imageOf(const PersonaGlyph& glyph, QSizeF size = {kSide, kSide}) {
    return drawn::image(size, kScale,
                        [&](QPainter& painter) { draw(painter, QRectF({}, size), glyph); });
}

/// The colour at a place given from the middle, on the grid of the drawing.
QColor at(const QImage& image, double x, double y) {
    return image.pixelColor(static_cast<int>((x + kSide / 2) * kScale),
                            static_cast<int>((y + kSide / 2) * kScale));
}

QColor atAngle(const QImage& image, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return at(image, radius * std::sin(angle), -radius * std::cos(angle));
}

/// How many spots brighter than `plain` lie on a circle around the middle.
int spots(const QImage& image, const QImage& plain, double radius) {
    constexpr int kSteps = 3600;
    int found = 0;
    // The round begins inside of the spot at the top and enters it at its end.
    bool inside = true;
    for (int i = 0; i < kSteps; ++i) {
        const double angle = i * 360.0 / kSteps;
        const bool lit =
            drawn::distance(atAngle(image, radius, angle), atAngle(plain, radius, angle)) > 20;
        if (lit && !inside) ++found;
        inside = lit;
    }
    return found;
}

TEST(PersonaGlyphPainter, TheDiscGoesFromOneColourAtTheUpperLeftToTheOther) {
    PersonaGlyph glyph = glyphOf(QStringLiteral("Night Owl"));
    const QImage image = imageOf(glyph);
    EXPECT_LT(drawn::distance(atAngle(image, 44, -30), glyph.startColor), 14);
    EXPECT_LT(drawn::distance(atAngle(image, 44, 150), glyph.endColor), 14);
    EXPECT_EQ(at(image, -46.5, -46.5), kGround) << "round";
    EXPECT_GT(atAngle(image, 46.5, 60).lightness(), atAngle(image, 44, 60).lightness() + 15)
        << "a light rim";
}

TEST(PersonaGlyphPainter, TheDiscReachesToTheEdgesOfItsArea) {
    const QImage image = imageOf(glyphOf(QStringLiteral("Night Owl")));
    for (const double angle : {0.0, 90.0, 180.0, 270.0})
        EXPECT_GT(drawn::distance(atAngle(image, 46.7, angle), kGround), 60) << angle;
}

TEST(PersonaGlyphPainter, EachKindHasASymbolOfItsOwn) {
    QStringList all = names();
    ASSERT_EQ(all.size(), 11);
    all << QStringLiteral("Nobody Knows");
    std::vector<QImage> images;
    for (const QString& name : all) {
        PersonaGlyph glyph = glyphOf(name);
        glyph.startColor = glyph.endColor = Qt::white;
        images.push_back(imageOf(glyph));
    }
    PersonaGlyph without = glyphOf(names().front());
    without.startColor = without.endColor = Qt::white;
    without.symbol = QStringLiteral("no such symbol");
    images.push_back(imageOf(without));
    for (std::size_t i = 0; i < images.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_NE(images[i], images[j]) << i << " and " << j;
}

TEST(PersonaGlyphPainter, ASymbolIsDrawnInInkInsideTheRings) {
    for (const QString& name : names()) {
        PersonaGlyph glyph = glyphOf(name);
        glyph.startColor = glyph.endColor = Qt::white;
        const QImage image = imageOf(glyph);
        int ink = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const double fromMiddle = std::hypot(x / kScale - 47, y / kScale - 47);
                if (fromMiddle > 46 || drawn::distance(image.pixelColor(x, y), kGround) > 4)
                    continue;
                ++ink;
                EXPECT_LT(fromMiddle, 31) << name.toStdString();
            }
        EXPECT_GT(ink / (kScale * kScale), 250) << name.toStdString();
    }
}

TEST(PersonaGlyphPainter, EachFinishedHourIsADotAndTheRingsFillOneAfterTheOther) {
    PersonaGlyph glyph = glyphOf(QStringLiteral("Long Hauler"));
    const QImage plain = imageOf(glyph);
    const auto dots = [&](std::int64_t count) {
        glyph.dotCount = count;
        const QImage image = imageOf(glyph);
        return std::array{spots(image, plain, 41.8), spots(image, plain, 37.4),
                          spots(image, plain, 33.0)};
    };
    EXPECT_EQ(dots(0), (std::array{0, 0, 0}));
    EXPECT_EQ(dots(1), (std::array{1, 0, 0}));
    EXPECT_EQ(dots(17), (std::array{17, 0, 0}));
    EXPECT_EQ(dots(46), (std::array{46, 0, 0}));
    EXPECT_EQ(dots(47), (std::array{46, 1, 0}));
    EXPECT_EQ(dots(123), (std::array{46, 41, 36}));
    EXPECT_EQ(dots(5'000'000'000), dots(mostDots));
}

TEST(PersonaGlyphPainter, TheDotsGoClockwiseFromTheTopAndGrowFainterInwards) {
    PersonaGlyph glyph = glyphOf(QStringLiteral("Multi Builder"));
    const QImage plain = imageOf(glyph);
    glyph.dotCount = mostDots;
    const QImage full = imageOf(glyph);
    const auto light = [&](const QImage& image, double radius, double angle) {
        return drawn::distance(atAngle(image, radius, angle), atAngle(plain, radius, angle));
    };
    EXPECT_GT(light(full, 41.8, 0), light(full, 37.4, 0) + 10);
    EXPECT_GT(light(full, 37.4, 0), light(full, 33.0, 0) + 10);
    glyph.dotCount = 12;
    const QImage quarter = imageOf(glyph);
    EXPECT_GT(light(quarter, 41.8, 360.0 / 46 * 11), 40);
    EXPECT_EQ(light(quarter, 41.8, 360.0 / 46 * 12), 0);
    EXPECT_EQ(light(quarter, 41.8, -360.0 / 46), 0);
}

TEST(PersonaGlyphPainter, ArtworkStandsInThePlaceOfTheDiscAndIsCutToItsShape) {
    PersonaGlyph glyph = glyphOf(QStringLiteral("Night Owl"));
    glyph.artwork = QImage(10, 10, QImage::Format_RGB32);
    glyph.artwork.fill(Qt::red);
    glyph.dotCount = 30;
    const QImage image = imageOf(glyph);
    EXPECT_EQ(at(image, 0, 0), QColor(Qt::red));
    EXPECT_EQ(atAngle(image, 41.8, 0), QColor(Qt::red));
    EXPECT_EQ(at(image, -45, -45), kGround);
}

TEST(PersonaGlyphPainter, UnfinishedArcsFillWithSessionsAndBricksWithDays) {
    const auto arcs = [](int sessions, int days) {
        PersonaGlyph glyph;
        glyph.sessionCount = sessions;
        glyph.activeDays = days;
        const QImage image = imageOf(glyph);
        int filled = 0;
        for (int i = 0; i < reviewcards::personaSessionsNeeded; ++i)
            filled += atAngle(image, 43, 36 + i * 72) == kAccent ? 1 : 0;
        for (const double brick : {-11.5, 11.5})
            filled += at(image, brick, 0) == kAccent ? 10 : 0;
        return filled;
    };
    EXPECT_EQ(arcs(0, 0), 0);
    EXPECT_EQ(arcs(3, 1), 13);
    EXPECT_EQ(arcs(5, 2), 25);
    EXPECT_EQ(arcs(70, 7), 25);

    PersonaGlyph glyph;
    glyph.sessionCount = 1;
    glyph.activeDays = 1;
    const QImage image = imageOf(glyph);
    EXPECT_EQ(atAngle(image, 43, 36), kAccent) << "clockwise from the top";
    EXPECT_LT(drawn::distance(atAngle(image, 43, 108), QColor(0x27, 0x27, 0x2C)), 3) << "a trough";
    EXPECT_EQ(atAngle(image, 43, 72), kGround) << "a gap";
    EXPECT_EQ(at(image, -11.5, 0), kAccent) << "the first brick";
    EXPECT_EQ(at(image, 0, 0), kGround) << "between the bricks";
}

TEST(PersonaGlyphPainter, FitsTheMiddleOfAnyArea) {
    const QImage image = imageOf(glyphOf(QStringLiteral("Early Bird")), {188, 94});
    EXPECT_EQ(image.pixelColor(static_cast<int>(40 * kScale), static_cast<int>(47 * kScale)),
              kGround);
    EXPECT_NE(image.pixelColor(static_cast<int>(52 * kScale), static_cast<int>(47 * kScale)),
              kGround);
}

TEST(PersonaGlyphPainter, LeavesThePainterAsItWas) {
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    const auto transform = painter.transform();
    draw(painter, {0, 0, 10, 10}, glyphOf(QStringLiteral("Early Bird")));
    EXPECT_EQ(painter.transform(), transform);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

} // namespace
} // namespace vantle::personaglyph
