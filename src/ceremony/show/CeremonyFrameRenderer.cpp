#include "ceremony/show/CeremonyFrameRenderer.h"

#include "ceremony/show/CeremonyNova.h"
#include "ceremony/show/CeremonyOverlays.h"
#include "ceremony/show/CeremonyPaletteRGB.h"
#include "ceremony/show/CeremonyShootingPoint.h"
#include "ceremony/show/CeremonyTimeline.h"

#include <utility>

namespace vantle {

CeremonyFrameRenderer::CeremonyFrameRenderer(CeremonyGridModel model, PixelOrder order)
    : m_model(std::move(model))
    , m_canvas(m_model.width, m_model.height, order)
    , m_dots(m_model, m_canvas) {}

void CeremonyFrameRenderer::fillField(double t) {
    m_canvas.clear(ceremonytimeline::plateByte(m_model.variant, t));
    if (m_model.variant == CeremonyVariant::Nova && t < CeremonyGridModel::detonation) {
        ceremonynova::drawCharge(m_canvas, m_model, t);
        return;
    }
    m_dots.drawBack(m_canvas, m_model, t);
    m_dots.drawFront(m_canvas, m_model, t);
    ceremonyoverlays::draw(m_canvas, m_model, t);
    if (hasTitle())
        m_canvas.drawCenteredGlow(240, m_canvas.packed(ceremonypalette::build),
                                  0.14 * ceremonytimeline::titleGlow(t));
    ceremonyshootingpoint::draw(m_canvas, m_model.height / 2, t);
}

double CeremonyFrameRenderer::titleOpacity(double t) const {
    return hasTitle() ? ceremonytimeline::titleOpacity(t) : 0;
}

double CeremonyFrameRenderer::titleRise(double t) const {
    return hasTitle() ? ceremonytimeline::titleRise(t) : 0;
}

double CeremonyFrameRenderer::captionOpacity(double t) const {
    return ceremonytimeline::captionOpacity(t);
}

CeremonyShake::Offset CeremonyFrameRenderer::shakeOffset(double t) {
    if (m_model.variant != CeremonyVariant::Nova) return {};
    return m_shake.at(t);
}

} // namespace vantle
