#include "surfaces/kit/tokens/TypeRole.h"

#include "surfaces/kit/text/Typeface.h"

#include <QFontMetricsF>

#include <cmath>

namespace vantle {

TypeRole::TypeRole(const look::TypeStep& step, QObject* parent)
    : QObject(parent)
    , m_display(step.display)
    , m_size(step.size)
    , m_line(step.line)
    , m_weight(step.weight)
    , m_tracking(step.tracking)
    , m_capitals(step.capitals) {}

QFont TypeRole::font() const {
    if (m_family.isEmpty())
        return fontOf({m_size, m_line, static_cast<QFont::Weight>(m_weight), m_tracking, m_display,
                       m_capitals});
    QFont font(m_family);
    font.setPixelSize(m_size);
    if (m_capitals) font.setCapitalization(QFont::AllUppercase);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

double TypeRole::leading() const {
    const QFontMetricsF metrics(font());
    return std::round((m_line - metrics.ascent() - metrics.descent()) / 2);
}

} // namespace vantle
