// Stretches the small picture of a frame smoothly over a screen.
//
// What QPainter does with SmoothPixmapTransform, to within 5 levels of 255, at a quarter of its
// time: each row of the source is widened once, and each row of the target is a mix of two of
// those.
#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// Keeps two rows as wide as the target between calls. One thread at a time.
class FieldStretch {
public:
    /// `Plain` is the same arithmetic without the processor's vector instructions.
    enum class Instructions : std::uint8_t { Best, Plain };
    explicit FieldStretch(Instructions instructions = Instructions::Best);

    /// Writes every pixel of `target`, 32 bits each. `source` is rows without gaps of that size, at
    /// least 1 x 1, premultiplied as the target is. A pixel of the source takes `factor` of the
    /// target each way, at least 1; its first corner lies at `shift`, in pixels of the target.
    /// What the source does not reach becomes clear.
    void stretch(std::span<const std::uint32_t> source, QSize size, double factor, QPointF shift,
                 QImage& target);

private:
    /// The source pixels that the columns of the target stand between.
    struct Columns {
        int width = 0; ///< of the source
        int count = 0; ///< of the target
        double factor = 0;
        double shift = 0;
        int first = 0; ///< the first column that the source reaches
        int end = 0;   ///< the one behind the last
        std::vector<std::uint32_t> left;
        /// Weights of the left and the right pixel, a byte each; 128 together.
        std::vector<std::uint16_t> weights;
    };

    void layOut(int width, int count, double factor, double shift);
    void widen(std::span<const std::uint32_t> row, std::vector<std::uint32_t>& wide);

    const bool m_hasSsse3;
    const bool m_hasAvx2;
    Columns m_columns;
    std::vector<std::uint32_t> m_row; ///< of the source, its last pixel twice
    std::vector<std::uint32_t> m_upper;
    std::vector<std::uint32_t> m_lower;
};

} // namespace vantle
