// The smooth scaler for frames.
//
// Matches QPainter's SmoothPixmapTransform within 5 levels of 255 in a quarter of the time: each
// source row is widened once, and each target row mixes two of those.
#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// Keeps two rows of the target's width between calls. One thread at a time.
class FieldStretch {
public:
    /// `Plain` computes the same without vector instructions.
    enum class Instructions : std::uint8_t { Best, Plain };
    explicit FieldStretch(Instructions instructions = Instructions::Best);

    /// Writes every 32-bit pixel of `target`. `source` has `size` (at least 1 x 1), no padding, and
    /// the target's premultiplied format. A source pixel covers `factor` (at least 1) target pixels
    /// in each direction; its origin is at `shift` in target pixels. Pixels beyond the source
    /// become transparent.
    void stretch(std::span<const std::uint32_t> source, QSize size, double factor, QPointF shift,
                 QImage& target);

private:
    /// The source pixels and weights of the target's columns.
    struct Columns {
        int width = 0; ///< of the source
        int count = 0; ///< of the target
        double factor = 0;
        double shift = 0;
        int first = 0; ///< the first column within the source
        int end = 0;   ///< one past the last
        std::vector<std::uint32_t> left;
        /// Weights of left and right pixel, a byte each; their sum is 128.
        std::vector<std::uint16_t> weights;
    };

    void layOut(int width, int count, double factor, double shift);
    void widen(std::span<const std::uint32_t> row, std::vector<std::uint32_t>& wide);

    const bool m_hasSsse3;
    const bool m_hasAvx2;
    Columns m_columns;
    std::vector<std::uint32_t> m_row; ///< of the source, last pixel repeated
    std::vector<std::uint32_t> m_upper;
    std::vector<std::uint32_t> m_lower;
};

} // namespace vantle
