#include "surfaces/wrapped/GradientText.h"

#include "base/Text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vantle {

void GradientText::layOut() {
    m_textWidth = QFontMetricsF(m_font).horizontalAdvance(m_text);
    setImplicitSize(std::ceil(m_textWidth), m_lineHeight);
}

QMarginsF GradientText::bleed() const {
    const QFontMetricsF metrics(m_font);
    const double above = std::ceil(std::max(0.0, (metrics.height() - height()) / 2));
    return {2.0, above, 2.0, above};
}

void GradientText::paint(QPainter& painter, double /*scale*/) {
    const QString shown = m_shown < 0 ? m_text : text::firstCharacters(m_text, m_shown);
    if (shown.isEmpty() || m_textWidth <= 0) return;
    const QFontMetricsF metrics(m_font);
    const double fit = std::min(1.0, width() / m_textWidth);
    const double baseline = (height() - metrics.height() * fit) / 2 + metrics.ascent() * fit;
    QPainterPath letters;
    letters.addText(QPointF(), m_font, shown);
    QLinearGradient gradient(0, 0, m_textWidth, 0);
    gradient.setColorAt(0, m_start);
    gradient.setColorAt(1, m_end);
    painter.translate(0, std::round(baseline));
    painter.scale(fit, fit);
    painter.fillPath(letters, gradient);
}

} // namespace vantle
