#include "surfaces/wrapped/PersonaDisc.h"

#include "review/drawing/PersonaArtwork.h"
#include "review/drawing/PersonaGlyphPainter.h"

namespace vantle {

void PersonaDisc::setCard(const PersonaCard& card) {
    m_card = card;
    Q_EMIT changed();
}

void PersonaDisc::paint(QPainter& painter, double /*scale*/) {
    personaglyph::draw(painter, boundingRect(),
                       PersonaGlyph::of(m_card, personaartwork::image(m_card.artwork)));
}

} // namespace vantle
