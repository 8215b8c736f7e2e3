#include "platform/tray/TemplateImage.h"

#include "platform/tray/Images.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
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

TEST(TemplateImage, WithAnEdgeItIsSeenOnAnyGround) {
    for (const QColor colour : {QColor(Qt::black), QColor(Qt::white), QColor(0x80, 0x80, 0x80)}) {
        const QIcon icon = inColourWithEdge(tests::disc(Qt::black, {16, 18, 22, 24}), colour);
        for (const int size : {16, 18, 22, 24})
            for (const int gray : {0x00, 0x20, 0x40, 0x80, 0xc0, 0xff}) {
                const QColor ground(gray, gray, gray);
                EXPECT_GE(tests::seenOn(ground, imageOf(icon, size)), size)
                    << qPrintable(colour.name()) << " on " << gray << " at " << size;
            }
    }
}

TEST(TemplateImage, EdgeIsThinAndLiesOutside) {
    const QIcon shape = tests::disc(Qt::black, {24});
    const QImage plain = imageOf(inColour(shape, Qt::black), 24);
    const QImage edged = imageOf(inColourWithEdge(shape, Qt::black), 24);
    int added = 0;
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x) {
            if (qAlpha(plain.pixel(x, y)) == 255) {
                EXPECT_EQ(edged.pixel(x, y), plain.pixel(x, y));
            }
            added += qAlpha(edged.pixel(x, y)) > qAlpha(plain.pixel(x, y));
        }
    constexpr double kAround = 3.15 * 0.7 * 24; // px of the disc's edge
    EXPECT_GT(added, kAround);
    EXPECT_LT(added, 2.5 * kAround);
    EXPECT_EQ(qAlpha(edged.pixel(0, 0)), 0);
}

TEST(TemplateImage, PlateBelowTheShapeGetsNoEdge) {
    QPixmap plate(24, 24);
    plate.fill(Qt::transparent);
    QPainter painter(&plate);
    painter.fillRect(QRect(4, 4, 16, 16), QColor(0, 0, 0, 102));
    painter.end();
    EXPECT_EQ(imageOf(inColourWithEdge(QIcon(plate), Qt::black), 24),
              imageOf(inColour(QIcon(plate), Qt::black), 24));
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
