// The low-resolution canvas of a ceremony frame.
//
// All painting is integer blending, so a frame is identical on every processor. Clips to the
// canvas. Does not allocate after construction. One thread at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// The order of a pixel's bytes in memory.
enum class PixelOrder { Rgba, Bgra };

class CeremonyCanvas {
public:
    /// For a screen of that size in points, at least 24 x 24.
    CeremonyCanvas(double widthInPoints, double heightInPoints, PixelOrder order);

    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    /// Points per pixel, at least 3. The canvas has at most about 270,000 pixels for any screen.
    [[nodiscard]] double scale() const { return m_scale; }
    /// The centre of the screen in pixels, and the pixel that holds it.
    [[nodiscard]] double centerX() const { return m_centerX; }
    [[nodiscard]] double centerY() const { return m_centerY; }
    [[nodiscard]] int centerColumn() const { return m_centerColumn; }
    [[nodiscard]] int centerRow() const { return m_centerRow; }

    [[nodiscard]] std::span<const std::uint32_t> pixels() const { return m_pixels; }
    [[nodiscard]] std::span<std::uint32_t> pixels() { return m_pixels; }

    /// Returns 0xRRGGBB as an opaque pixel for the painting functions.
    [[nodiscard]] std::uint32_t packed(std::uint32_t rgb) const;

    /// Distances in pixels from the pixel centres of a row to the centre of the screen.
    [[nodiscard]] std::span<const float> distances(int row) const;

    /// Sets every pixel to black with that alpha (0 to 255).
    void clear(int alpha);

    /// Blends every pixel; has no effect for a strength (0 to 255) below 1.
    void blendAll(std::uint32_t color, int strength);

    /// Blends one pixel, clipped.
    void blendAt(int column, int row, std::uint32_t color, double alpha);
    /// Blends a whole row or column, clipped.
    void blendRow(int row, std::uint32_t color, double alpha);
    void blendColumn(int column, std::uint32_t color, double alpha);

    /// Blends a point at subpixel position, spread over four pixels. Pixel centres are at halves.
    void plot(double x, double y, std::uint32_t color, double alpha);

    /// Draws a soft ring around the centre; lengths in points.
    void stampRing(double radius, double lineWidth, std::uint32_t color, double alpha);
    /// Draws a glow around the centre that fades to 0 at `radius` points.
    void drawCenteredGlow(double radius, std::uint32_t color, double centerAlpha);

    /// The pixels around the centre that a disc of `radius` pixels may cover; clipped, inclusive.
    struct Box {
        int left, top, right, bottom;
    };
    [[nodiscard]] Box centeredBox(double radius) const;

private:
    /// A glow as last drawn: many frames in a row have the same one.
    struct Glow {
        double radius = 0; ///< pixels
        double centerAlpha = 0;
        std::vector<std::uint8_t> strengths; ///< of its box, row by row; as large as the canvas
    };
    [[nodiscard]] const std::vector<std::uint8_t>& glowOf(double radius, double centerAlpha,
                                                          const Box& box);
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
    std::array<Glow, 2> m_glows;
    std::size_t m_oldestGlow = 0;
};

} // namespace vantle
