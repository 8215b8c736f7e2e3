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

void TypeRole::setSize(int size) {
    if (m_size == size) return;
    m_size = size;
    Q_EMIT changed();
}

void TypeRole::setLine(int line) {
    if (m_line == line) return;
    m_line = line;
    Q_EMIT changed();
}

void TypeRole::setScale(double scale) {
    if (m_scale == scale) return;
    m_scale = scale;
    Q_EMIT changed();
}

int TypeRole::scaled(int length) const { return static_cast<int>(std::lround(length * m_scale)); }

QFont TypeRole::font() const {
    if (m_family.isEmpty())
        return fontOf({size(), line(), static_cast<QFont::Weight>(m_weight), m_tracking, m_display,
                       m_capitals});
    QFont font(m_family);
    font.setPixelSize(size());
    if (m_capitals) font.setCapitalization(QFont::AllUppercase);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

double TypeRole::leading() const {
    const QFontMetricsF metrics(font());
    return std::round((line() - metrics.ascent() - metrics.descent()) / 2);
}

} // namespace vantle
