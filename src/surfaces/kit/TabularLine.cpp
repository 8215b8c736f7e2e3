#include "surfaces/kit/TabularLine.h"

#include <QPainter>

#include <cmath>

namespace vantle {

void TabularLine::setText(const QString& text) {
    if (!show(m_text, text)) return;
    layOut();
    Q_EMIT changed();
}

void TabularLine::setColor(const QColor& color) {
    if (show(m_color, color)) Q_EMIT changed();
}

void TabularLine::setFont(const QFont& font) {
    if (!show(m_font, font)) return;
    layOut();
    Q_EMIT changed();
}

void TabularLine::setLineHeight(double height) {
    if (!show(m_lineHeight, height)) return;
    layOut();
    Q_EMIT changed();
}

void TabularLine::layOut() {
    m_line = tabular::layOut(m_text, m_font);
    setImplicitSize(std::ceil(m_line.width), m_lineHeight);
}

QMarginsF TabularLine::bleed() const {
    // Letters may lean out of their line, whose height is a matter of the layout.
    const double above = std::ceil(std::max(0.0, (m_line.ascent + m_line.descent - height()) / 2));
    return {1.0, above, 1.0, above};
}

void TabularLine::paint(QPainter& painter, double scale) {
    painter.setPen(m_color);
    const double leading = (height() - m_line.ascent - m_line.descent) / 2;
    const double baseline = std::round((std::round(leading) + m_line.ascent) * scale) / scale;
    for (const QGlyphRun& run : m_line.runs)
        painter.drawGlyphRun({0.0, baseline}, run);
}

} // namespace vantle
