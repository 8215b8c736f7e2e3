#include "surfaces/wrapped/SharePosterPicture.h"

#include "surfaces/wrapped/poster/PosterSamples.h"
#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include <QPainter>
#include <QQuickWindow>

#include <gtest/gtest.h>

namespace vantle {
namespace {

constexpr double kWidth = 264;

class SharePosterPictureTest : public testing::Test {
protected:
    SharePosterPictureTest() {
        m_picture.setParentItem(m_window.contentItem());
        m_picture.setPoster(m_poster);
        m_picture.setWidth(kWidth);
        m_picture.setHeight(m_picture.implicitHeight());
        m_window.setColor(Qt::magenta);
        m_window.resize(300, 500);
    }

    [[nodiscard]] QImage onScreen() {
        m_window.show();
        return m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
    }

    const SharePoster m_poster =
        samples::sharePoster(WrappedPeriod::LastWeek, QStringLiteral("Night Owl"));
    QQuickWindow m_window;
    SharePosterPicture m_picture;
};

TEST_F(SharePosterPictureTest, HeightFollowsFromWidthAndPoster) {
    EXPECT_EQ(m_picture.implicitWidth(), 422);
    EXPECT_DOUBLE_EQ(m_picture.implicitHeight(), kWidth / 422 * 620);
    m_picture.setPoster(samples::sharePoster(WrappedPeriod::Week));
    EXPECT_DOUBLE_EQ(m_picture.implicitHeight(), kWidth / 422 * 668);
}

TEST_F(SharePosterPictureTest, IsDrawnAtTheScreensScale) {
    QImage drawn(264, 388, QImage::Format_RGB32);
    drawn.fill(Qt::magenta);
    {
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(kWidth / 422, kWidth / 422);
        shareposter::draw(painter, m_poster, kWidth / 422);
    }
    // The last row of pixels is the item's part of one.
    const QRect whole(0, 0, 264, 387);
    EXPECT_EQ(onScreen().copy(whole), drawn.copy(whole));
}

TEST_F(SharePosterPictureTest, HasRoundCornersOnRequest) {
    EXPECT_NE(onScreen().pixelColor(0, 0), QColor(Qt::magenta));
    m_picture.setProperty("radius", 14);
    const QImage round = onScreen();
    EXPECT_EQ(round.pixelColor(0, 0), QColor(Qt::magenta));
    EXPECT_EQ(round.pixelColor(263, 0), QColor(Qt::magenta));
    EXPECT_GT(round.pixelColor(0, 200).red(), round.pixelColor(3, 200).red()) << "a fine edge";
}

} // namespace
} // namespace vantle
