#include "platform/desktop/TemplateImage.h"

#include "tray/Images.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace vantle {
namespace {

QImage imageOf(const QIcon& icon, int size) {
    return icon.pixmap(QSize(size, size), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

TEST(TemplateImage, TakesTheColourAndKeepsTheShape) {
    const QIcon shape = tests::disc(Qt::black);
    const QIcon coloured = inColour(shape, QColor(0x20, 0x40, 0x60));
    EXPECT_EQ(coloured.availableSizes(), shape.availableSizes());
    const QImage before = imageOf(shape, 36);
    const QImage after = imageOf(coloured, 36);
    ASSERT_EQ(after.size(), before.size());
    int halfTransparent = 0;
    for (int y = 0; y < 36; ++y) {
        for (int x = 0; x < 36; ++x) {
            EXPECT_EQ(qAlpha(after.pixel(x, y)), qAlpha(before.pixel(x, y)));
            if (qAlpha(after.pixel(x, y)) == 255)
                EXPECT_EQ(after.pixel(x, y), 0xff204060U);
            else if (qAlpha(after.pixel(x, y)) > 0)
                ++halfTransparent;
        }
    }
    EXPECT_GT(halfTransparent, 0);
    EXPECT_EQ(after.pixel(18, 18), 0xff204060U);
    EXPECT_EQ(qAlpha(after.pixel(0, 0)), 0);
}

class BarTextColour : public testing::Test {
protected:
    ~BarTextColour() override { QGuiApplication::setPalette(m_palette); }
    static void setWindowText(const QColor& colour) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, colour);
        QGuiApplication::setPalette(palette);
    }

    const QPalette m_palette = QGuiApplication::palette();
};

TEST_F(BarTextColour, IsThePalettesWindowText) {
    setWindowText(QColor(1, 2, 3));
    EXPECT_EQ(barTextColour({}), QColor(1, 2, 3));
}

TEST_F(BarTextColour, StaysOnAGroundThatItIsSeenOn) {
    setWindowText(QColor(0x20, 0x20, 0xa0));
    EXPECT_EQ(barTextColour(QColor(0xda, 0xd8, 0xd2)), QColor(0x20, 0x20, 0xa0));
}

TEST_F(BarTextColour, GivesWayOnAGroundOfItsOwnKind) {
    setWindowText(Qt::black);
    EXPECT_EQ(barTextColour(QColor(0x20, 0x20, 0x20)), QColor(Qt::white));
    setWindowText(Qt::white);
    EXPECT_EQ(barTextColour(QColor(0xda, 0xd8, 0xd2)), QColor(Qt::black));
}

} // namespace
} // namespace vantle
