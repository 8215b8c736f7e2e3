#include "surfaces/kit/tokens/TypeRole.h"

#include "surfaces/kit/text/Typeface.h"

#include <QFontMetricsF>

#include <cmath>

namespace vantle {

QFont TypeRole::font() const {
    const Typeface& face = m_display ? Typeface::display() : Typeface::text();
    QFont font(m_family.isEmpty() ? face.family : m_family);
    font.setPixelSize(m_size);
    if (m_family.isEmpty()) {
        font.setWeight(static_cast<QFont::Weight>(m_weight));
        font.setLetterSpacing(QFont::AbsoluteSpacing, m_size * (m_tracking + face.tracking));
    }
    if (m_capitals) font.setCapitalization(QFont::AllUppercase);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

double TypeRole::leading() const {
    const QFontMetricsF metrics(font());
    return std::round((m_line - metrics.ascent() - metrics.descent()) / 2);
}

} // namespace vantle
