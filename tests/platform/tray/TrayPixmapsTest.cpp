#include "platform/tray/TrayPixmaps.h"

#include "platform/tray/Images.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;

std::vector<int> widths(const TrayPixmaps& pixmaps) {
    std::vector<int> widths;
    for (const auto& pixmap : pixmaps)
        widths.push_back(pixmap.width);
    return widths;
}

TEST(TrayPixmaps, PixelsAreAlphaRedGreenBlue) {
    const auto pixmaps = trayPixmaps(tests::square(QColor(0x11, 0x22, 0x33), {16}));
    ASSERT_EQ(pixmaps.size(), 1);
    EXPECT_EQ(pixmaps[0].width, 16);
    EXPECT_EQ(pixmaps[0].height, 16);
    EXPECT_EQ(pixmaps[0].argb, QByteArray::fromHex("ff112233").repeated(256));
}

TEST(TrayPixmaps, ColoursAreNotDarkenedByTheirAlpha) {
    const auto pixmaps = trayPixmaps(tests::square(QColor(255, 0, 0, 0x80), {16}));
    EXPECT_EQ(pixmaps.at(0).argb.first(4), QByteArray::fromHex("80ff0000"));
}

TEST(TrayPixmaps, RowsComeFromTheTop) {
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::blue);
    QPainter(&pixmap).fillRect(0, 0, 16, 1, Qt::red);
    const auto pixmaps = trayPixmaps(QIcon(pixmap));
    EXPECT_EQ(pixmaps.at(0).argb, QByteArray::fromHex("ffff0000").repeated(16) +
                                      QByteArray::fromHex("ff0000ff").repeated(240));
}

TEST(TrayPixmaps, AllSizesOfTraysThatTheImageHasAreThere) {
    EXPECT_THAT(widths(trayPixmaps(tests::square(Qt::red, {16, 18, 22, 24, 32, 36, 48, 54}))),
                ElementsAre(16, 18, 22, 24, 32, 36, 48));
}

TEST(TrayPixmaps, SizeThatTheImageLacksIsGivenOnceAsTheNextSmaller) {
    EXPECT_THAT(widths(trayPixmaps(tests::square(Qt::red, {16, 22}))), ElementsAre(16, 18, 22));
}

TEST(TrayPixmaps, EmptyImageHasNone) { EXPECT_TRUE(trayPixmaps(QIcon()).isEmpty()); }

} // namespace
} // namespace vantle
