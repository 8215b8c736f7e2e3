// Text has the weight of its outlines, whatever the graphics library does to make it heavier.
#include "surfaces/kit/tokens/TypeRole.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QVariant>

#include <gtest/gtest.h>

#include <cmath>
#include <thread>

namespace vantle {
namespace {

constexpr double kTolerance = 0.03; // of the outlines' ink
constexpr int kEnlargement = 8;     // at which neither hints nor darkening change a shape

const QString& letters() {
    static const QString text = QStringLiteral("Hamburgefonstiv 0123456789 quick log");
    return text;
}

QFont fontOf(int pixels, int weight) {
    TypeRole role;
    role.setProperty("size", pixels);
    role.setProperty("weight", weight);
    return role.font();
}

/// The sum of what `paint` changes on a ground, in whole pixels of full strength.
template <typename Paint>
double ink(QSize size, QColor ground, const Paint& paint) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    painter.end();
    double sum = 0;
    const int bare = qGray(ground.rgb());
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            sum += std::abs(qGray(line[x]) - bare) / 255.0;
    }
    return sum;
}

double drawnInk(int pixels, int weight, QColor ground, QColor pen) {
    return ink({pixels * 30, pixels * 3}, ground, [&](QPainter& painter) {
        painter.setFont(fontOf(pixels, weight));
        painter.setPen(pen);
        painter.drawText(QPointF(pixels, pixels * 2), letters());
    });
}

double outlinedInk(int pixels, int weight) {
    QFont font = fontOf(pixels * kEnlargement, weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    const int large = pixels * kEnlargement;
    path.setFillRule(Qt::WindingFill);
    path.addText(QPointF(large, large * 2), font, letters());
    const double sum = ink({large * 30, large * 3}, Qt::black,
                           [&](QPainter& painter) { painter.fillPath(path, Qt::white); });
    return sum / (kEnlargement * kEnlargement);
}

void expectTrueInk() {
    for (const int weight : {400, 500, 600, 700}) {
        for (const int pixels : {11, 12, 15, 28}) {
            const double wanted = outlinedInk(pixels, weight);
            EXPECT_NEAR(drawnInk(pixels, weight, Qt::black, Qt::white) / wanted, 1.0, kTolerance)
                << pixels << " px, " << weight << ", light on dark";
            EXPECT_NEAR(drawnInk(pixels, weight, Qt::white, Qt::black) / wanted, 1.0, kTolerance)
                << pixels << " px, " << weight << ", dark on light";
        }
    }
}

TEST(TypeInk, IsThatOfTheOutlines) {
    ASSERT_TRUE(QFontDatabase::hasFamily(QStringLiteral("Inter"))) << "the face of the program";
    expectTrueInk();
}

TEST(TypeInk, IsThatOfTheOutlinesInAnotherThread) {
    std::thread other(expectTrueInk);
    other.join();
}

} // namespace
} // namespace vantle
