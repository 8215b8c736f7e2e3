#include "ceremony/show/FieldStretch.h"

#include "SampleShows.h"

#include <QPainter>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vantle::tests {
namespace {

constexpr std::uint32_t kGarbage = 0xA5C3'5A3C;

struct Picture {
    QSize size;
    std::vector<std::uint32_t> pixels;
};

/// Premultiplied noise.
Picture noise(QSize size, std::uint64_t seed) {
    fakes::SplitMixRandom random(seed);
    Picture picture{size, {}};
    for (int i = 0; i < size.width() * size.height(); ++i) {
        const auto alpha = static_cast<std::uint32_t>(random.uniform() * 256);
        std::uint32_t pixel = alpha << 24;
        for (const unsigned bit : {0U, 8U, 16U})
            pixel |= static_cast<std::uint32_t>(random.uniform() * (alpha + 1)) << bit;
        picture.pixels.push_back(pixel);
    }
    return picture;
}

Picture frameOf(CeremonyVariant variant, QSizeF screen, double t) {
    CeremonyFrameRenderer renderer = sampleShow(variant, screen);
    renderer.fillField(t);
    return {QSize(renderer.bufferWidth(), renderer.bufferHeight()),
            {renderer.fieldBuffer().begin(), renderer.fieldBuffer().end()}};
}

QImage stretched(const Picture& picture, double factor, QPointF shift, QSize target,
                 FieldStretch::Instructions instructions = FieldStretch::Instructions::Best) {
    QImage image(target, QImage::Format_ARGB32_Premultiplied);
    image.fill(kGarbage);
    FieldStretch(instructions).stretch(picture.pixels, picture.size, factor, shift, image);
    return image;
}

QImage paintedStretch(const Picture& picture, double factor, QPointF shift, QSize target) {
    const QImage field(reinterpret_cast<const uchar*>(picture.pixels.data()), picture.size.width(),
                       picture.size.height(), QImage::Format_ARGB32_Premultiplied);
    QImage image(target, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRectF(shift, QSizeF(picture.size) * factor), field);
    return image;
}

/// The largest difference of a channel, and how many differ by more than two levels.
struct Difference {
    int largest = 0;
    double seen = 0; ///< part of all channels
};

Difference differenceOf(const QImage& one, const QImage& other, QRect where) {
    Difference difference;
    int seen = 0;
    for (int y = where.top(); y <= where.bottom(); ++y) {
        const uchar* a = one.constScanLine(y) + 4 * where.left();
        const uchar* b = other.constScanLine(y) + 4 * where.left();
        for (int i = 0; i < 4 * where.width(); ++i) {
            const int off = std::abs(a[i] - b[i]);
            difference.largest = std::max(difference.largest, off);
            seen += off > 2 ? 1 : 0;
        }
    }
    difference.seen = seen / (4.0 * where.width() * where.height());
    return difference;
}

// At some factors, 6 among them, it is more: the painter counts in 65536ths of a pixel, and is off
// by a part of one at the end of a long row.
TEST(FieldStretch, IsWhatAPainterDrawsToWithinFiveLevels) {
    struct Screen {
        QSizeF points;
        double scale;
    };
    for (const Screen screen : {Screen{{1440, 900}, 1}, Screen{{1280, 800}, 1.25},
                                Screen{{1366, 768}, 1.5}, Screen{{1920, 1080}, 1.75}}) {
        const Picture picture = frameOf(CeremonyVariant::Nova, screen.points, 0.62);
        const double factor =
            screen.points.width() * screen.scale / static_cast<double>(picture.size.width());
        const QSize target = (screen.points * screen.scale).toSize();
        const Difference difference =
            differenceOf(stretched(picture, factor, {}, target),
                         paintedStretch(picture, factor, {}, target), QRect({}, target));
        EXPECT_LE(difference.largest, 5) << screen.points.width() << " at " << screen.scale;
        EXPECT_LE(difference.seen, 0.01) << screen.points.width() << " at " << screen.scale;
    }
}

TEST(FieldStretch, MovesAsAPainterDoesAndLeavesTheRestClear) {
    const Picture picture = frameOf(CeremonyVariant::Rain, {600, 400}, 1.2);
    const QSize target = picture.size * 3;
    for (const QPointF shift : {QPointF(3.4, -2.7), QPointF(-4.6, 5.2)}) {
        const QImage moved = stretched(picture, 3, shift, target);
        // At the border a painter takes half a pixel more or less.
        const Difference difference = differenceOf(moved, paintedStretch(picture, 3, shift, target),
                                                   QRect({}, target).marginsRemoved({8, 8, 8, 8}));
        EXPECT_LE(difference.largest, 5) << shift.x();
        const QPoint left(0, target.height() / 2);
        const QPoint right(target.width() - 1, target.height() / 2);
        EXPECT_EQ(moved.pixel(shift.x() > 0 ? left : right), 0U) << shift.x();
        EXPECT_NE(qAlpha(moved.pixel(shift.x() > 0 ? right : left)), 0) << shift.x();
        const QPoint top(target.width() / 2, 0);
        const QPoint bottom(target.width() / 2, target.height() - 1);
        EXPECT_EQ(moved.pixel(shift.y() > 0 ? top : bottom), 0U) << shift.y();
        EXPECT_NE(qAlpha(moved.pixel(shift.y() > 0 ? bottom : top)), 0) << shift.y();
    }
}

TEST(FieldStretch, APlainFieldStaysAsItIs) {
    for (const std::uint32_t color : {0xFFFFFFFFU, 0x85000000U, 0x80402010U, 0U}) {
        const Picture plain{QSize(31, 17), std::vector<std::uint32_t>(31 * 17, color)};
        const QImage image = stretched(plain, 5.54, {}, QSize(171, 94));
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ASSERT_EQ(image.pixel(x, y), color) << x << ' ' << y;
    }
}

TEST(FieldStretch, OnePixelFillsAll) {
    const Picture single{QSize(1, 1), {0x7F102030U}};
    const QImage image = stretched(single, 9, {}, QSize(9, 9));
    EXPECT_EQ(image.pixel(0, 0), 0x7F102030U);
    EXPECT_EQ(image.pixel(8, 8), 0x7F102030U);
}

TEST(FieldStretch, HalfOfALevelIsRoundedUp) {
    const std::vector<std::uint32_t> levels = {0xFF646464U, 0xFF656565U}; // 100 and 101
    for (const auto instructions :
         {FieldStretch::Instructions::Best, FieldStretch::Instructions::Plain}) {
        const QImage across =
            stretched({QSize(2, 1), levels}, 1, QPointF(0.5, 0), QSize(8, 1), instructions);
        EXPECT_EQ(across.pixel(1, 0), 0xFF656565U);
        const QImage down =
            stretched({QSize(1, 2), levels}, 1, QPointF(0, 0.5), QSize(1, 8), instructions);
        EXPECT_EQ(down.pixel(0, 1), 0xFF656565U);
        EXPECT_EQ(down.pixel(0, 0), 0xFF646464U);
    }
}

TEST(FieldStretch, WritesIntoAPartOfALargerPictureAlone) {
    const Picture picture = noise(QSize(13, 7), 1);
    constexpr int kGap = 5; // pixels between the rows
    std::vector<std::uint32_t> room((41 + kGap) * 23, kGarbage);
    QImage part(reinterpret_cast<uchar*>(room.data()), 41, 23, (41 + kGap) * 4,
                QImage::Format_ARGB32_Premultiplied);
    FieldStretch().stretch(picture.pixels, picture.size, 3.2, {}, part);
    for (std::size_t y = 0; y < 23; ++y)
        for (std::size_t x = 41; x < 41 + kGap; ++x)
            ASSERT_EQ(room[y * (41 + kGap) + x], kGarbage) << x << ' ' << y;
}

TEST(FieldStretch, TheNextFrameOwesNothingToTheOneBefore) {
    const Picture first = noise(QSize(40, 30), 2);
    const Picture second = noise(QSize(25, 35), 3);
    const QSize target(120, 100);
    FieldStretch kept;
    QImage image(target, QImage::Format_ARGB32_Premultiplied);
    kept.stretch(first.pixels, first.size, 3, QPointF(2, -1), image);
    kept.stretch(second.pixels, second.size, 4.1, {}, image);
    EXPECT_EQ(image, stretched(second, 4.1, {}, target));
    kept.stretch(first.pixels, first.size, 3, {}, image);
    EXPECT_EQ(image, stretched(first, 3, {}, target));
    // As at the end of a shake: nothing else changes.
    for (const QPointF shift : {QPointF(2, -1), QPointF(-3, 0), QPointF(), QPointF()}) {
        kept.stretch(first.pixels, first.size, 3, shift, image);
        EXPECT_EQ(image, stretched(first, 3, shift, target)) << shift.x();
    }
}

RC_GTEST_PROP(FieldStretch, VectorInstructionsAnswerAsPlainOnesDo, ()) {
    const QSize size(*rc::gen::inRange(1, 60), *rc::gen::inRange(1, 20));
    const QSize target(*rc::gen::inRange(1, 200), *rc::gen::inRange(1, 60));
    const double factor = *rc::gen::inRange(100, 800) / 100.0;
    const QPointF shift(*rc::gen::inRange(-900, 900) / 100.0, *rc::gen::inRange(-900, 900) / 100.0);
    const Picture picture = noise(size, *rc::gen::arbitrary<std::uint64_t>());
    RC_ASSERT(stretched(picture, factor, shift, target) ==
              stretched(picture, factor, shift, target, FieldStretch::Instructions::Plain));
}

} // namespace
} // namespace vantle::tests
