// The content of an overlay, frame by frame.
#pragma once

#include "base/Date.h"

#include <QImage>
#include <QRegion>
#include <QSize>

namespace vantle {

/// A frame depends only on its time, so frames may be skipped. Times are seconds from the start by
/// the wall clock; lengths are points from the screen's top left. Main thread.
class OverlayView {
public:
    explicit OverlayView(Date start) : m_start(start) {}
    virtual ~OverlayView() = default;
    OverlayView(const OverlayView&) = delete;
    OverlayView& operator=(const OverlayView&) = delete;

    /// The time of `play`: zero of the times below.
    [[nodiscard]] Date start() const { return m_start; }

    /// Nothing is visible from this time on.
    [[nodiscard]] virtual Seconds endTime() const = 0;

    /// Overwrites all of `frame` (Format_ARGB32_Premultiplied, devicePixelRatio pixels per point)
    /// with the picture at `t`; transparent before 0 and after the end.
    virtual void paint(QImage& frame, Seconds t) = 0;

    /// Paints the picture at `t` for a desktop without translucent windows; only solidPart() is
    /// visible.
    virtual void paintSolid(QImage& frame, Seconds t) { paint(frame, t); }

    /// The part of the screen to show on a desktop without translucent windows. The window is cut
    /// to it; empty means that nothing is shown.
    [[nodiscard]] virtual QRegion solidPart(QSize size, Seconds t) const = 0;

private:
    const Date m_start;
};

} // namespace vantle
