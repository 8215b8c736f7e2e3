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

TEST(TemplateImage, BarsTextHasTheColourOfThePalettesWindowText) {
    const QPalette before = QGuiApplication::palette();
    QPalette palette = before;
    palette.setColor(QPalette::WindowText, QColor(1, 2, 3));
    QGuiApplication::setPalette(palette);
    EXPECT_EQ(barTextColour(), QColor(1, 2, 3));
    QGuiApplication::setPalette(before);
}

} // namespace
} // namespace vantle
