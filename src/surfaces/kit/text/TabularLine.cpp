#include "surfaces/kit/text/TabularLine.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace vantle {

void TabularLine::layOut() {
    m_line = tabular::layOut(m_text, m_font);
    setImplicitSize(std::ceil(m_line.width), m_lineHeight);
}

QMarginsF TabularLine::bleed() const {
    // Letters may extend beyond the line, whose height is the layout's.
    const double above = std::ceil(std::max(0.0, (m_line.ascent + m_line.descent - height()) / 2));
    return {1.0, above, 1.0, above};
}

void TabularLine::paint(QPainter& painter, double scale) {
    // Qt draws text heavier on an opaque background. Drawing white on black and using the
    // brightness as a mask matches the text beside it.
    const QRectF area = boundingRect().marginsAdded(bleed());
    QImage light((area.size() * scale).toSize() + QSize(1, 1), QImage::Format_RGB32);
    light.fill(Qt::black);
    QPainter text(&light);
    text.setRenderHint(QPainter::Antialiasing);
    text.scale(scale, scale);
    text.translate(-area.topLeft());
    text.setPen(Qt::white);
    const double leading = (height() - m_line.ascent - m_line.descent) / 2;
    const double baseline = std::round((std::round(leading) + m_line.ascent) * scale) / scale;
    for (const QGlyphRun& run : m_line.runs)
        text.drawGlyphRun({0.0, baseline}, run);
    text.end();

    QImage shape(light.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(m_color);
    shape.setAlphaChannel(light.convertToFormat(QImage::Format_Grayscale8));
    shape.setDevicePixelRatio(scale);
    painter.drawImage(area.topLeft(), shape);
}

} // namespace vantle
