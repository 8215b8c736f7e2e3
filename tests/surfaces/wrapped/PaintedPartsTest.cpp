// What the painted parts of pages look like, by their pixels.
#include "surfaces/wrapped/BurstDots.h"
#include "surfaces/wrapped/DotRing.h"
#include "surfaces/wrapped/GradientText.h"

#include <QCoreApplication>
#include <QImage>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr QSize kPage(400, 320);

class PaintedPartsTest : public testing::Test {
protected:
    /// The item on black, with room around it.
    QImage pictureOf(QQuickItem& item, QPointF place = {20, 20}) {
        item.setParentItem(m_window.contentItem());
        item.setPosition(place);
        m_window.setColor(Qt::black);
        m_window.resize(kPage);
        m_window.show();
        QCoreApplication::processEvents();
        return m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
    }
    /// Where something is to be seen.
    static QRect litArea(const QImage& image) {
        QRect lit;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).value() > 40) lit |= QRect(x, y, 1, 1);
        return lit;
    }
    /// The strongest colour of a column.
    static QColor columnColor(const QImage& image, int x) {
        QColor best = Qt::black;
        for (int y = 0; y < image.height(); ++y)
            if (image.pixelColor(x, y).value() > best.value()) best = image.pixelColor(x, y);
        return best;
    }

    QQuickWindow m_window;
};

class GradientTextTest : public PaintedPartsTest {
protected:
    GradientTextTest() {
        QFont font;
        font.setPixelSize(40);
        m_text.setProperty("font", font);
        m_text.setProperty("lineHeight", 48);
        m_text.setProperty("text", QStringLiteral("HHHHHHHH"));
        m_text.setProperty("startColor", QColor(Qt::red));
        m_text.setProperty("endColor", QColor(Qt::blue));
        m_text.setSize({m_text.implicitWidth(), m_text.implicitHeight()});
    }
    GradientText m_text;
};

TEST_F(GradientTextTest, GoesFromOneColourToTheOtherOverTheWholeName) {
    const QImage image = pictureOf(m_text);
    const QRect lit = litArea(image);
    const QColor first = columnColor(image, lit.left() + 3);
    const QColor last = columnColor(image, lit.right() - 3);
    EXPECT_GT(first.red(), 4 * first.blue());
    EXPECT_GT(last.blue(), 4 * last.red());
}

TEST_F(GradientTextTest, FirstLettersHaveTheColoursThatTheyWillKeep) {
    const QRect whole = litArea(pictureOf(m_text));
    m_text.setProperty("shownCharacters", 4);
    const QImage image = pictureOf(m_text);
    const QRect half = litArea(image);
    EXPECT_EQ(half.left(), whole.left());
    EXPECT_NEAR(half.width(), whole.width() / 2, 12);
    const QColor last = columnColor(image, half.right() - 3);
    EXPECT_GT(last.red(), last.blue() / 2) << "not at the end of the gradient yet";
    m_text.setProperty("shownCharacters", 0);
    EXPECT_TRUE(litArea(pictureOf(m_text)).isNull());
}

TEST_F(GradientTextTest, IsSetSmallerWhereThereIsNoRoom) {
    m_text.setWidth(m_text.implicitWidth() / 2);
    const QRect lit = litArea(pictureOf(m_text));
    EXPECT_LE(lit.width(), m_text.width() + 1);
    EXPECT_GT(lit.width(), m_text.width() - 12);
}

class BurstDotsTest : public PaintedPartsTest {
protected:
    [[nodiscard]] QRect areaAt(double progress) {
        BurstDots burst;
        burst.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::green}));
        burst.setSize({120, 40});
        burst.setProperty("progress", progress);
        return litArea(pictureOf(burst, {140, 140}));
    }
};

TEST_F(BurstDotsTest, FlyFromTheCentreBeyondTheItem) {
    const QRect early = areaAt(0.1);
    const QRect late = areaAt(0.6);
    EXPECT_TRUE(late.contains(early));
    EXPECT_GT(late.width(), 160);
    EXPECT_NEAR(early.center().x(), 200, 12);
    EXPECT_NEAR(early.center().y(), 160, 12);
}

TEST_F(BurstDotsTest, AreNotThereBeforeAndAfter) {
    EXPECT_TRUE(areaAt(0).isNull());
    EXPECT_TRUE(areaAt(1).isNull());
}

TEST_F(PaintedPartsTest, RingBeginsAtTheTopAndLeavesItsMiddleFree) {
    DotRing ring;
    ring.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::blue}));
    ring.setProperty("count", 2); // one at the top, one at the bottom
    ring.setProperty("dotRadius", 10);
    ring.setSize({100, 100});
    const QImage image = pictureOf(ring, {50, 50});
    const QColor top = image.pixelColor(100, 60);
    const QColor bottom = image.pixelColor(100, 140);
    EXPECT_GT(top.red(), top.blue());
    EXPECT_GT(bottom.blue(), bottom.red());
    EXPECT_LT(image.pixelColor(100, 100).value(), 10);
}

TEST_F(PaintedPartsTest, RingWithoutColoursIsNone) {
    DotRing ring;
    ring.setSize({100, 100});
    EXPECT_TRUE(litArea(pictureOf(ring)).isNull());
}

} // namespace
} // namespace vantle
