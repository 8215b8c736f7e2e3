#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace vantle::glassdotpainter {
namespace {

constexpr int kSide = 200;
constexpr QPointF kCentre{100.0, 100.0};
constexpr double kRadius = 40.0;
const QColor kViolet(0x7A, 0x78, 0xFF);

/// What is drawn, on black.
QImage drawn(const std::function<void(QPainter&)>& draw) {
    QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(painter);
    return image;
}

QImage filled() {
    return drawn([](QPainter& painter) { drawFilled(painter, kCentre, kRadius, kViolet); });
}

/// The colour at a place given in radii from the centre, x to the right and y down.
QColor at(const QImage& image, double x, double y) {
    return image.pixelColor((kCentre + kRadius * QPointF(x, y)).toPoint());
}

TEST(GlassDotPainter, TheSphereIsLighterInTheMiddleThanAtItsEdge) {
    const QImage dot = filled();
    EXPECT_GT(at(dot, 0, 0).lightness(), at(dot, 0.93, 0).lightness());
    EXPECT_GT(at(dot, 0, 0).lightness(), at(dot, -0.93, 0).lightness());
}

TEST(GlassDotPainter, TheSphereIsLitFromAbove) {
    const QImage dot = filled();
    EXPECT_GT(at(dot, 0, -0.75).lightness(), at(dot, 0, 0).lightness());
    EXPECT_GT(at(dot, 0, -0.75).lightness(), at(dot, 0, 0.75).lightness());
}

TEST(GlassDotPainter, TheGlowFadesAndEnds) {
    const QImage dot = filled();
    EXPECT_GT(at(dot, 1.1, 0).lightness(), at(dot, 1.3, 0).lightness());
    EXPECT_GT(at(dot, 1.3, 0).lightness(), 0);
    EXPECT_EQ(at(dot, kGlowReach + 0.05, 0).lightness(), 0);
}

TEST(GlassDotPainter, TheSphereHasItsOwnHue) {
    EXPECT_NEAR(at(filled(), 0, 0.2).hslHue(), kViolet.hslHue(), 4);
}

TEST(GlassDotPainter, ASocketIsFaintAndHasNoHue) {
    const QImage socket = drawn([](QPainter& painter) { drawEmpty(painter, kCentre, kRadius); });
    const QColor middle = at(socket, 0, 0);
    EXPECT_EQ(middle.saturation(), 0);
    EXPECT_LT(middle.lightness(), 60);
    EXPECT_GT(middle.lightness(), at(socket, 0.75, 0).lightness());
    EXPECT_GT(at(socket, 0.75, 0).lightness(), 0);
    EXPECT_EQ(at(socket, 1.2, 0).lightness(), 0);
}

TEST(GlassDotPainter, ASliceRunsClockwiseFromTheTop) {
    const QImage third =
        drawn([](QPainter& painter) { drawSlice(painter, kCentre, kRadius, kViolet, 1.0 / 3.0); });
    EXPECT_GT(at(third, 0.1, -0.7).lightness(), 100); // just after the top
    EXPECT_GT(at(third, 0.7, 0.1).lightness(), 100);  // a quarter and a little
    EXPECT_LT(at(third, 0.2, 0.7).lightness(), 40);   // nearly half
    EXPECT_LT(at(third, -0.1, -0.7).lightness(), 40); // just before the top
    EXPECT_GT(at(third, -0.5, 0.0).lightness(), 5);   // the disc below it
}

TEST(GlassDotPainter, ASliceOfMoreThanAnHourIsFull) {
    const auto slice = [](double fraction) {
        return drawn([fraction](QPainter& painter) {
            drawSlice(painter, kCentre, kRadius, kViolet, fraction);
        });
    };
    EXPECT_EQ(slice(1.7), slice(1.0));
    EXPECT_GT(at(slice(1.0), -0.1, -0.7).lightness(), 100);
    EXPECT_EQ(at(slice(0.0), 0.1, -0.7), at(slice(0.0), -0.1, -0.7));
}

TEST(GlassDotPainter, ASliceHasTheRimOfGlassAllAround) {
    const QImage quarter =
        drawn([](QPainter& painter) { drawSlice(painter, kCentre, kRadius, kViolet, 0.25); });
    for (const QPointF edge : {QPointF(-1, 0), QPointF(0, 1)}) {
        int rim = 0; // the brightest pixel across the edge: the rim is thinner than one
        for (const double way : {0.98, 0.99, 1.0})
            rim = std::max(rim, at(quarter, way * edge.x(), way * edge.y()).lightness());
        const QColor inside = at(quarter, 0.9 * edge.x(), 0.9 * edge.y());
        EXPECT_GT(rim, inside.lightness() + 12) << edge.x() << ", " << edge.y();
    }
}

TEST(GlassDotPainter, ASmallDotHasNoDirtyEdge) {
    // How much darker it is near its side than in the middle, enlarged to be looked at.
    const auto shade = [](double radius) {
        const QImage dot = drawn([radius](QPainter& painter) {
            painter.translate(kCentre);
            painter.scale(kRadius / radius, kRadius / radius);
            drawFilled(painter, {}, radius, kViolet);
        });
        return at(dot, 0, 0.1).lightness() - at(dot, 0.85, 0.1).lightness();
    };
    EXPECT_LT(shade(4.9), 3);
    EXPECT_GT(shade(5.0), 10);
}

} // namespace
} // namespace vantle::glassdotpainter
