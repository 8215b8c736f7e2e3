// The end of a session: a ring that closes on the centre.
#pragma once

#include "platform/OverlayView.h"

#include <QRgb>
#include <QSizeF>

#include <cstdint>
#include <optional>

namespace vantle {

/// Accelerates, and gets more opaque as it shrinks. Main thread.
class CollapseRippleView final : public OverlayView {
public:
    static constexpr Seconds duration{0.6};

    struct Ring {
        double radius = 0;    ///< points; not drawn at 1 and below
        double lineWidth = 0; ///< points
        double opacity = 0;   ///< 0 to 1
        [[nodiscard]] bool isDrawn() const { return radius > 1; }
    };
    /// Returns the ring at `t` on a screen of that size; empty outside of the show.
    [[nodiscard]] static std::optional<Ring> ringAt(QSizeF size, Seconds t);

    CollapseRippleView(Date start, std::uint32_t accent) : OverlayView(start), m_accent(accent) {}

    [[nodiscard]] Seconds endTime() const override { return duration; }
    void paint(QImage& picture, Seconds t) override;
    [[nodiscard]] QRegion solidPart(QSize size, Seconds t) const override;

private:
    const QRgb m_accent;
};

} // namespace vantle
