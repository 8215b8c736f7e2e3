// The small picture that a frame is painted into, and the few ways of painting into it.
//
// Everything comes down to one integer blend, so a frame is the same on every processor. Whatever
// lies outside the picture is left out. Nothing here allocates after construction. One thread at a
// time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// The order in which the bytes of a pixel lie in memory.
enum class PixelOrder { Rgba, Bgra };

class CeremonyCanvas {
public:
    /// For a screen of that size in points, at least 24 x 24.
    CeremonyCanvas(double widthInPoints, double heightInPoints, PixelOrder order);

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    /// Points a pixel, at least 3: the picture has about 270,000 pixels at most, however large the
    /// screen is.
    [[nodiscard]] double scale() const { return m_scale; }
    /// The centre of the screen in pixels, and the pixel that holds it.
    [[nodiscard]] double centerX() const { return m_centerX; }
    [[nodiscard]] double centerY() const { return m_centerY; }
    [[nodiscard]] int centerColumn() const { return m_centerColumn; }
    [[nodiscard]] int centerRow() const { return m_centerRow; }

    [[nodiscard]] std::span<const std::uint32_t> pixels() const { return m_pixels; }
    [[nodiscard]] std::span<std::uint32_t> pixels() { return m_pixels; }

    /// A colour 0xRRGGBB as an opaque pixel of this canvas; what the painting functions take.
    [[nodiscard]] std::uint32_t packed(std::uint32_t rgb) const;

    /// Distance in pixels from the centre of a pixel to the centre of the screen.
    [[nodiscard]] std::span<const float> distances(int row) const;

    /// Every pixel black, with that alpha (0 to 255).
    void clear(int alpha);

    /// Every pixel; a strength (0 to 255) below 1 does nothing.
    void blendAll(std::uint32_t color, int strength);

    /// One pixel, which may lie outside.
    void blendAt(int column, int row, std::uint32_t color, double alpha);
    /// A whole row or column, which may lie outside.
    void blendRow(int row, std::uint32_t color, double alpha);
    void blendColumn(int column, std::uint32_t color, double alpha);

    /// A point between pixels: spread over the four around it. Pixel centres are at halves.
    void plot(double x, double y, std::uint32_t color, double alpha);

    /// A soft ring around the centre; lengths in points.
    void stampRing(double radius, double lineWidth, std::uint32_t color, double alpha);
    /// A glow around the centre that fades out towards `radius` points.
    void drawCenteredGlow(double radius, std::uint32_t color, double centerAlpha);

    /// The box of pixels around the centre that a disc of `radius` pixels needs; inside the
    /// picture, ends included.
    struct Box {
        int left, top, right, bottom;
    };
    [[nodiscard]] Box centeredBox(double radius) const;

private:
    [[nodiscard]] std::size_t offset(int column, int row) const;

    int m_width = 0;
    int m_height = 0;
    double m_scale = 0;
    double m_centerX = 0;
    double m_centerY = 0;
    int m_centerColumn = 0;
    int m_centerRow = 0;
    PixelOrder m_order;
    std::vector<std::uint32_t> m_pixels;
    std::vector<float> m_distances;
    std::vector<std::uint32_t> m_strengths; ///< of a row, four times each
};

} // namespace vantle
