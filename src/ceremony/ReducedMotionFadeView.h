// What people see who asked for less movement: the screen dims softly, and lights up again.
#pragma once

#include "platform/OverlayView.h"

#include <QRgb>

#include <cstdint>
#include <optional>

namespace vantle {

/// A breath of dark with a glow of the skill's colour in the centre.
class ReducedMotionFadeView final : public OverlayView {
public:
    static constexpr Seconds duration{0.9};

    struct Frame {
        double black = 0;  ///< opacity of the dark over the whole screen
        double centre = 0; ///< opacity of the glow at its centre, falling to 0 at the radius
        double radius = 0; ///< points
    };
    /// The frame at that time; none outside of the show.
    [[nodiscard]] static std::optional<Frame> frameAt(Seconds t);

    ReducedMotionFadeView(Date start, std::uint32_t accent)
        : OverlayView(start)
        , m_accent(accent) {}

    [[nodiscard]] Seconds endTime() const override { return duration; }
    void paint(QImage& picture, Seconds t) override;
    /// Nothing: a fade is all transparency.
    [[nodiscard]] QRegion solidPart(QSize, Seconds) const override { return {}; }

private:
    const QRgb m_accent;
};

} // namespace vantle
