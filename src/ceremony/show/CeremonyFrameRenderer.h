// Paints the frames of a show into a small buffer, which the screen then stretches smoothly.
//
// Made off the main thread, since that takes milliseconds; after that one thread at a time. A frame
// depends on its time alone, so frames may be left out; only the shake remembers something.
#pragma once

#include "ceremony/show/CeremonyCanvas.h"
#include "ceremony/show/CeremonyDots.h"
#include "ceremony/show/CeremonyGridModel.h"
#include "ceremony/show/CeremonyShake.h"

#include <cstdint>
#include <span>

namespace vantle {

class CeremonyFrameRenderer {
public:
    /// `order` says in which order the bytes of a pixel lie: `Rgba` is QImage's
    /// Format_RGBA8888_Premultiplied; `Bgra` is its Format_ARGB32_Premultiplied on processors with
    /// the low byte first, which a painter scales the fastest.
    explicit CeremonyFrameRenderer(CeremonyGridModel model, PixelOrder order = PixelOrder::Rgba);

    [[nodiscard]] const CeremonyGridModel& model() const { return m_model; }
    [[nodiscard]] bool hasTitle() const { return !m_model.titleImage.isNull(); }

    /// Paints the frame at `t` seconds into the buffer, from nothing. Allocates nothing.
    void fillField(double t);

    /// The frame: bufferWidth() x bufferHeight() pixels with premultiplied alpha, rows from the
    /// top, no gaps between them. Valid as long as this object, and overwritten by fillField().
    [[nodiscard]] std::span<const std::uint32_t> fieldBuffer() const { return m_canvas.pixels(); }
    [[nodiscard]] int bufferWidth() const { return m_canvas.width(); }
    [[nodiscard]] int bufferHeight() const { return m_canvas.height(); }
    /// Points a pixel. The buffer may reach beyond the right and the lower edge of the screen.
    [[nodiscard]] double bufferScale() const { return m_canvas.scale(); }

    /// Of the title pill, which stands in the centre of the screen; 0 without a title.
    [[nodiscard]] double titleOpacity(double t) const;
    /// How far the title pill stands above the centre, in points; negative is below.
    [[nodiscard]] double titleRise(double t) const;
    /// Of the caption, whose centre stands 46 points above the lower edge of the screen.
    [[nodiscard]] double captionOpacity(double t) const;

    /// How far field, title and caption are all moved, in points: dx to the right, dy downwards.
    /// To be asked once a frame.
    [[nodiscard]] CeremonyShake::Offset shakeOffset(double t);
    [[nodiscard]] std::uint64_t shakeState() const { return m_shake.state(); }

    [[nodiscard]] const CeremonyCanvas& canvas() const { return m_canvas; }
    [[nodiscard]] const CeremonyDots& dots() const { return m_dots; }

private:
    CeremonyGridModel m_model;
    CeremonyCanvas m_canvas;
    CeremonyDots m_dots;
    CeremonyShake m_shake;
};

} // namespace vantle
