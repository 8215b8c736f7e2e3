// The pixels of an exported poster, in px of the poster.
#pragma once

#include "surfaces/wrapped/poster/SharePosterPainter.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRect>

#include <algorithm>
#include <array>

namespace vantle::tests {

class PosterPixels {
public:
    explicit PosterPixels(const SharePoster& poster)
        : m_image((kScale * shareposter::size(poster)).toSize(), QImage::Format_RGB32) {
        QPainter painter(&m_image);
        painter.scale(kScale, kScale);
        shareposter::draw(painter, poster, kScale);
    }

    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] int height() const { return m_image.height() / kScale; }

    /// Returns the smallest rectangle around pixels unlike the background.
    [[nodiscard]] QRect drawnIn(const QRect& area) const {
        QRect drawn;
        forEach(area, [&](QPoint at, const QColor& color) {
            if (isLit(color)) drawn |= QRect(at, QSize(1, 1));
        });
        return drawn;
    }

    /// Returns the mean colour of pixels clearly unlike the background; invalid when there are
    /// none.
    [[nodiscard]] QColor meanOfLit(const QRect& area) const {
        std::array<int, 3> sum{};
        int count = 0;
        forEach(area, [&](QPoint, const QColor& color) {
            if (!isLit(color)) return;
            ++count;
            sum[0] += color.red();
            sum[1] += color.green();
            sum[2] += color.blue();
        });
        return count == 0 ? QColor() : QColor(sum[0] / count, sum[1] / count, sum[2] / count);
    }

    /// Returns the colour at the centre of a px.
    [[nodiscard]] QColor at(int x, int y) const {
        return m_image.pixelColor(kScale * x + 1, kScale * y + 1);
    }

private:
    static constexpr int kScale = 2;
    static constexpr int kLit = 24; // brighter than the background by this much

    static bool isLit(const QColor& color) {
        return std::max({color.red(), color.green(), color.blue()}) > 15 + kLit;
    }

    template <typename Look>
    void forEach(const QRect& area, Look look) const {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                look(QPoint(x, y), at(x, y));
    }

    QImage m_image;
};

} // namespace vantle::tests
