// What every clipboard for pictures promises.
#include "contract/Contract.h"
#include "fakes/FakeImageClipboard.h"
#include "platform/session/QtImageClipboard.h"
#include "support/Await.h"
#include "support/Text.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QProcess>

namespace vantle {
namespace {

using tests::text;

/// A clipboard and another program, which pastes.
class ClipboardWorld {
public:
    virtual ~ClipboardWorld() = default;
    [[nodiscard]] virtual ImageClipboard& clipboard() = 0;
    /// What the other program gets that asks for a PNG.
    [[nodiscard]] virtual QByteArray pasted() = 0;
};

class FakeWorld final : public ClipboardWorld {
public:
    [[nodiscard]] ImageClipboard& clipboard() override { return m_clipboard; }
    [[nodiscard]] QByteArray pasted() override { return m_clipboard.content; }

private:
    fakes::FakeImageClipboard m_clipboard;
};

/// The selection of the X server, which other processes read.
class SelectionWorld final : public ClipboardWorld {
public:
    [[nodiscard]] ImageClipboard& clipboard() override { return m_clipboard; }
    [[nodiscard]] QByteArray pasted() override {
        QProcess other;
        other.start(text("xclip"), {text("-selection"), text("clipboard"), text("-target"),
                                    text("image/png"), text("-out")});
        EXPECT_TRUE(tests::await([&] { return other.state() == QProcess::NotRunning; }));
        EXPECT_EQ(other.exitCode(), 0) << other.readAllStandardError().toStdString();
        return other.readAllStandardOutput();
    }

private:
    QtImageClipboard m_clipboard;
};

QByteArray pngOf(const QColor& color, int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

class ImageClipboardContract : public contract::Contract<ClipboardWorld> {};

INSTANTIATE_TEST_SUITE_P(
    , ImageClipboardContract,
    testing::Values(contract::maker<ClipboardWorld, FakeWorld>("Fake"),
                    contract::maker<ClipboardWorld, SelectionWorld>("Selection")),
    contract::kByName);

TEST_P(ImageClipboardContract, GivesTheVeryBytesToWhoAsksForPng) {
    world().clipboard().copyPng(pngOf(Qt::red, 3));
    EXPECT_EQ(world().pasted(), pngOf(Qt::red, 3));
    EXPECT_EQ(world().pasted(), pngOf(Qt::red, 3)) << "as often as it is pasted";
}

TEST_P(ImageClipboardContract, ANewPictureTakesThePlaceOfTheLast) {
    world().clipboard().copyPng(pngOf(Qt::red, 3));
    world().clipboard().copyPng(pngOf(Qt::blue, 4));
    EXPECT_EQ(world().pasted(), pngOf(Qt::blue, 4));
}

TEST_P(ImageClipboardContract, KeepsAPictureOfManyBytes) {
    // More than the X server hands over in one piece.
    QImage image(1200, 1200, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, static_cast<QRgb>(0xFF000000u | (x * 7919u + y * 104729u) * 31u));
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG", 100);
    ASSERT_GT(png.size(), 1 << 20);
    world().clipboard().copyPng(png);
    EXPECT_TRUE(world().pasted() == png);
}

} // namespace
} // namespace vantle
