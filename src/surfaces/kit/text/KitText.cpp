#include "surfaces/kit/text/KitText.h"

#include <QFontMetricsF>

#include <algorithm>
#include <numeric>

namespace vantle {

QList<double> KitText::partWidths(const QStringList& texts, const QFont& font, double padding,
                                  double room) {
    if (texts.isEmpty()) return {};
    const auto count = static_cast<double>(texts.size());
    const QFontMetricsF metrics(font);
    QList<double> widths;
    widths.reserve(texts.size());
    for (const QString& text : texts)
        widths << metrics.horizontalAdvance(text) + padding;
    if (*std::ranges::max_element(widths) <= room / count)
        return QList<double>(texts.size(), room / count);
    const double rest = room - std::accumulate(widths.begin(), widths.end(), 0.0);
    for (double& width : widths)
        width += rest / count;
    return widths;
}

double KitText::partLeft(const QStringList& texts, const QFont& font, double padding, double room,
                         int index) {
    const QList<double> before =
        partWidths(texts, font, padding, room).first(std::clamp<qsizetype>(index, 0, texts.size()));
    return std::accumulate(before.begin(), before.end(), 0.0);
}

} // namespace vantle
