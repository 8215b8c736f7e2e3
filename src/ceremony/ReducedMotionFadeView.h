// The ceremony with reduced motion: the screen dims and lights up again.
#pragma once

#include "platform/OverlayView.h"

#include <QRgb>

#include <cstdint>
#include <optional>

namespace vantle {

/// A short dimming with a glow of the skill's colour in the centre. Main thread.
class ReducedMotionFadeView final : public OverlayView {
public:
    static constexpr Seconds duration{0.9};

    struct Frame {
        double black = 0;  ///< opacity of the black over the whole screen
        double centre = 0; ///< opacity of the glow at its centre; 0 at the radius
        double radius = 0; ///< points
    };
    /// Returns the frame at `t`; empty outside of the show.
    [[nodiscard]] static std::optional<Frame> frameAt(Seconds t);

    ReducedMotionFadeView(Date start, std::uint32_t accent)
        : OverlayView(start)
        , m_accent(accent) {}

    [[nodiscard]] Seconds endTime() const override { return duration; }
    void paint(QImage& picture, Seconds t) override;
    /// Empty: all of a fade is translucent.
    [[nodiscard]] QRegion solidPart(QSize, Seconds) const override { return {}; }

private:
    const QRgb m_accent;
};

} // namespace vantle
