// What an overlay shows, frame by frame.
#pragma once

#include "base/Date.h"

#include <QImage>
#include <QRegion>
#include <QSize>

namespace vantle {

/// A frame depends on its time alone, so frames may be dropped. Times are seconds from the start of
/// the show, by the wall clock; lengths are points from the top left of the screen. Main thread.
class OverlayView {
public:
    explicit OverlayView(Date start) : m_start(start) {}
    virtual ~OverlayView() = default;
    OverlayView(const OverlayView&) = delete;
    OverlayView& operator=(const OverlayView&) = delete;

    /// The moment of `play`: the zero of the times below.
    [[nodiscard]] Date start() const { return m_start; }

    /// From this time on nothing shows any more.
    [[nodiscard]] virtual Seconds endTime() const = 0;

    /// Writes the moment over all of `frame`, whatever that holds: Format_ARGB32_Premultiplied,
    /// with as many pixels a point as its devicePixelRatio. All clear outside of 0 up to the end.
    virtual void paint(QImage& frame, Seconds t) = 0;

    /// Writes the moment where no window can be see-through; only solidPart() of it can be seen.
    virtual void paintSolid(QImage& frame, Seconds t) { paint(frame, t); }

    /// The part of the screen that can be shown where no window can be see-through. Outside of it
    /// the window must not be; empty means that there is nothing to show.
    [[nodiscard]] virtual QRegion solidPart(QSize size, Seconds t) const = 0;

private:
    const Date m_start;
};

} // namespace vantle
