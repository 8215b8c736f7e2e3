#include "surfaces/kit/painters/GlassDot.h"

#include "surfaces/kit/painters/GlassDotPainter.h"

#include <QPainter>

#include <algorithm>

namespace vantle {

double GlassDot::radius() const { return std::min(width(), height()) / 2; }

QMarginsF GlassDot::bleed() const {
    const double beyond = radius() * (glassdotpainter::kGlowReach - 1.0) + 1.0;
    return {beyond, beyond, beyond, beyond};
}

void GlassDot::paint(QPainter& painter, double /*scale*/) {
    const QPointF center = boundingRect().center();
    if (m_fraction >= 0.0)
        glassdotpainter::drawSlice(painter, center, radius(), m_color, m_fraction);
    else if (m_filled)
        glassdotpainter::drawFilled(painter, center, radius(), m_color);
    else
        glassdotpainter::drawEmpty(painter, center, radius());
}

} // namespace vantle
