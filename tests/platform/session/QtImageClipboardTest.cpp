#include "platform/session/QtImageClipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <gtest/gtest.h>

namespace vantle {
namespace {

QByteArray pngOf(const QColor& color) {
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

const QMimeData& content() { return *QGuiApplication::clipboard()->mimeData(); }

TEST(QtImageClipboard, GivesThePictureToWhoKnowsNoPng) {
    QtImageClipboard clipboard;
    clipboard.copyPng(pngOf(Qt::green));
    ASSERT_TRUE(content().hasImage());
    const auto image = content().imageData().value<QImage>();
    EXPECT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::green));
}

TEST(QtImageClipboard, NothingOfATextStaysBesideThePicture) {
    QtImageClipboard clipboard;
    QGuiApplication::clipboard()->setText(QStringLiteral("a word"));
    clipboard.copyPng(pngOf(Qt::red));
    EXPECT_FALSE(content().hasText());
    EXPECT_EQ(content().formats().first(), QStringLiteral("image/png"));
}

} // namespace
} // namespace vantle
