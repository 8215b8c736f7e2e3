// The end of a session: one ring that closes on the centre of the screen.
#pragma once

#include "platform/OverlayView.h"

#include <QRgb>
#include <QSizeF>

#include <cstdint>
#include <optional>

namespace vantle {

/// Slow at first, and more visible the smaller it gets.
class CollapseRippleView final : public OverlayView {
public:
    static constexpr Seconds duration{0.6};

    struct Ring {
        double radius = 0;    ///< points; at 1 and below nothing is drawn
        double lineWidth = 0; ///< points
        double opacity = 0;   ///< 0 to 1
        [[nodiscard]] bool isDrawn() const { return radius > 1; }
    };
    /// The ring at that time on a screen of that size; none outside of the show.
    [[nodiscard]] static std::optional<Ring> ringAt(QSizeF size, Seconds t);

    CollapseRippleView(Date start, std::uint32_t accent) : OverlayView(start), m_accent(accent) {}

    [[nodiscard]] Seconds endTime() const override { return duration; }
    void paint(QImage& picture, Seconds t) override;
    [[nodiscard]] QRegion solidPart(QSize size, Seconds t) const override;

private:
    const QRgb m_accent;
};

} // namespace vantle
