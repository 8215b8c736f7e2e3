// The renderer of a show's low-resolution frames.
//
// The screen scales the frames up smoothly. Construct off the main thread, since it takes
// milliseconds; afterwards one thread at a time. A frame depends only on its time, so frames may be
// skipped; only the shake has state.
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
    /// `order` is the byte order: `Rgba` is QImage's Format_RGBA8888_Premultiplied; `Bgra` is
    /// Format_ARGB32_Premultiplied on little-endian processors, which QPainter scales fastest.
    explicit CeremonyFrameRenderer(CeremonyGridModel model, PixelOrder order = PixelOrder::Rgba);

    [[nodiscard]] const CeremonyGridModel& model() const { return m_model; }
    [[nodiscard]] bool hasTitle() const { return !m_model.titleImage.isNull(); }

    /// Renders the frame at `t` seconds from scratch. Does not allocate.
    void fillField(double t);

    /// The frame: bufferWidth() x bufferHeight() premultiplied pixels, top row first, no padding.
    /// Valid as long as this object; fillField() overwrites it.
    [[nodiscard]] std::span<const std::uint32_t> fieldBuffer() const { return m_canvas.pixels(); }
    [[nodiscard]] int bufferWidth() const { return m_canvas.width(); }
    [[nodiscard]] int bufferHeight() const { return m_canvas.height(); }
    /// Points per pixel. The buffer may extend beyond the screen's right and lower edge.
    [[nodiscard]] double bufferScale() const { return m_canvas.scale(); }

    /// The opacity of the title pill in the screen's centre; 0 without a title.
    [[nodiscard]] double titleOpacity(double t) const;
    /// The title pill's height above the centre in points; negative is below.
    [[nodiscard]] double titleRise(double t) const;
    /// The caption's opacity; its centre is 46 points above the screen's lower edge.
    [[nodiscard]] double captionOpacity(double t) const;

    /// The offset of field, title and caption, in points: dx to the right, dy down. Call once per
    /// frame.
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
