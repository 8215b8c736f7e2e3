#include "ceremony/CeremonyLayerView.h"

#include "ceremony/CeremonyWorld.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

constexpr QSize kScreen(600, 400);

/// A show with plain images in the place of its texts: red for the title, green for the caption.
std::unique_ptr<CeremonyFrameRenderer> rendererOf(CeremonyVariant variant, bool hasTitle = true) {
    GivenNumbers random;
    CeremonyGridModel model = CeremonyGridModel::choreograph(variant, kScreen, random);
    const auto image = [](Qt::GlobalColor color) {
        QImage plain(200, 80, QImage::Format_ARGB32_Premultiplied);
        plain.fill(color);
        return plain;
    };
    if (hasTitle) {
        model.titleImage = image(Qt::red);
        model.titleSize = QSizeF(100, 40);
    }
    model.captionImage = image(Qt::green);
    model.captionSize = QSizeF(100, 40);
    return std::make_unique<CeremonyFrameRenderer>(std::move(model), PixelOrder::Bgra);
}

QImage painted(CeremonyLayerView& view, double t) {
    QImage image(kScreen, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkCyan); // what stood there before
    view.paint(image, Seconds(t));
    return image;
}

bool isRed(QColor color) { return color.red() > 200 && color.green() < 60; }
bool isGreener(QColor color) { return color.green() > color.red() && color.green() > 60; }

TEST(CeremonyLayerView, TheTitleStandsInTheCentreAndLeavesUpwards) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Scan));
    const QImage held = painted(view, 2.3);
    EXPECT_TRUE(isRed(held.pixelColor(300, 200)));
    EXPECT_TRUE(isRed(held.pixelColor(252, 182)));
    EXPECT_FALSE(isRed(held.pixelColor(300, 224)));
    EXPECT_TRUE(isRed(painted(view, 2.85).pixelColor(300, 170))) << "it lifts";
    EXPECT_FALSE(isRed(painted(view, 1.6).pixelColor(300, 200))) << "not there yet";
}

TEST(CeremonyLayerView, TheCaptionStandsAboveTheLowerEdge) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Wall));
    EXPECT_TRUE(isGreener(painted(view, 1.0).pixelColor(300, 400 - 46)));
    EXPECT_TRUE(isGreener(painted(view, 1.0).pixelColor(255, 400 - 46 - 18)));
    EXPECT_FALSE(isGreener(painted(view, 2.0).pixelColor(300, 400 - 46)));
}

TEST(CeremonyLayerView, ThePlateCoversTheWholeScreenToItsLastPixel) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Rain));
    const QImage image = painted(view, 1.2);
    for (const QPoint corner : {QPoint(0, 0), QPoint(599, 0), QPoint(0, 399), QPoint(599, 399)})
        EXPECT_GE(image.pixelColor(corner).alphaF(), 0.5F) << corner.x() << ' ' << corner.y();
}

TEST(CeremonyLayerView, TheShakeMovesFieldTitleAndCaptionTogether) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Nova));
    // The first frame that stands far enough from its place.
    CeremonyShake sequence;
    CeremonyShake::Offset offset;
    QImage shaken;
    while (std::abs(offset.dx) < 2 || std::abs(offset.dy) < 2) {
        offset = sequence.at(0.55);
        shaken = painted(view, 0.55);
    }
    // On one side of the screen the field has moved away from the edge.
    const QPoint bared(offset.dx > 0 ? 0 : 599, 200);
    EXPECT_LT(shaken.pixelColor(bared).alpha(), shaken.pixelColor(300, 10).alpha());
    // The caption, 40 high, leaves the row of its own edge.
    const int edge = offset.dy > 0 ? 400 - 46 - 20 : 400 - 46 + 19;
    const int inside = 400 - 46;
    EXPECT_GT(shaken.pixelColor(300, inside).green(), shaken.pixelColor(300, edge).green());
}

TEST(CeremonyLayerView, NothingIsPaintedOutsideOfTheShow) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Nova));
    QImage clear(kScreen, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    EXPECT_EQ(painted(view, -0.01), clear);
    EXPECT_EQ(painted(view, 3.1), clear);
    EXPECT_EQ(view.endTime(), Seconds(3.1));
}

TEST(CeremonyLayerView, WithoutTransparencyTheTitleStandsFromTheFirstFrame) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Nova));
    for (const double t : {0.0, 0.05, 0.55, 1.7, 2.3}) {
        EXPECT_EQ(view.solidPart(kScreen, Seconds(t)).boundingRect(), QRect(250, 180, 100, 40));
        QImage image(kScreen, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::darkCyan);
        view.paintSolid(image, Seconds(t));
        EXPECT_TRUE(isRed(image.pixelColor(300, 200))) << t;
        EXPECT_EQ(image.pixelColor(10, 10).alpha(), 0) << "nothing is painted that can't be seen";
    }
    EXPECT_TRUE(view.solidPart(kScreen, Seconds(-0.01)).isEmpty());
}

TEST(CeremonyLayerView, WithoutTransparencyTheWindowIsTheTitlePillAlone) {
    CeremonyLayerView view({}, rendererOf(CeremonyVariant::Spiral));
    const QRegion pill = view.solidPart(kScreen, Seconds(2.3));
    EXPECT_EQ(pill.boundingRect(), QRect(250, 180, 100, 40));
    EXPECT_FALSE(pill.contains(QPoint(250, 180))) << "its corners are round";
    EXPECT_LT(view.solidPart(kScreen, Seconds(2.85)).boundingRect().top(), 180);
    EXPECT_TRUE(view.solidPart(kScreen, Seconds(3.1)).isEmpty());
    CeremonyLayerView untitled({}, rendererOf(CeremonyVariant::Spiral, false));
    EXPECT_TRUE(untitled.solidPart(kScreen, Seconds(2.3)).isEmpty());
}

} // namespace
} // namespace vantle::tests
