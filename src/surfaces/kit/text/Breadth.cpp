#include "surfaces/kit/text/Breadth.h"

#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

// Views lay out with the same engine, but round elsewhere.
constexpr double kSlack = 1.0; // px

struct Lines {
    int count = 0;
    bool fits = true;       ///< no word is wider than its line
    bool isLastBare = true; ///< the last line is a single word
};

class Setter {
public:
    Setter(const QString& text, const QFont& font, const Column& column)
        : m_column(column)
        , m_text(text)
        , m_layout(m_text.replace(QLatin1Char('\n'), QChar::LineSeparator), font) {
        QTextOption option;
        option.setWrapMode(QTextOption::WordWrap);
        option.setUseDesignMetrics(column.designMetrics);
        m_layout.setTextOption(option);
        m_layout.setCacheEnabled(true);
    }

    [[nodiscard]] Lines at(double breadth) {
        Lines lines;
        m_layout.beginLayout();
        QTextLine last;
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            const double room = lines.count == 0 ? m_column.firstLineRoom : 0;
            const double width = std::min(breadth, m_column.width - room);
            line.setLineWidth(width);
            lines.fits = lines.fits && line.naturalTextWidth() <= width + kSlack / 2;
            ++lines.count;
            last = line;
        }
        m_layout.endLayout();
        if (last.isValid())
            lines.isLastBare = !m_text.mid(last.textStart(), last.textLength())
                                    .trimmed()
                                    .contains(QLatin1Char(' '));
        return lines;
    }

    /// Within the px that a view may be narrower than the text that it takes its width from.
    [[nodiscard]] bool fitsOneLine() {
        m_layout.beginLayout();
        m_layout.createLine().setLineWidth(m_column.width - m_column.firstLineRoom + kSlack);
        const bool fits = !m_layout.createLine().isValid();
        m_layout.endLayout();
        return fits;
    }

private:
    Column m_column;
    QString m_text;
    QTextLayout m_layout;
};

/// Returns the smallest width that needs no more lines than the column.
double evenBreadth(Setter& setter, double width, int count) {
    double low = width / count / 2;
    double high = width;
    while (high - low > kSlack) {
        const double middle = (low + high) / 2;
        const Lines lines = setter.at(middle);
        (lines.fits && lines.count <= count ? high : low) = middle;
    }
    return high;
}

} // namespace

double balancedBreadth(const QString& text, const QFont& font, const Column& column) {
    if (text.isEmpty() || column.width <= 0 || !text.contains(QLatin1Char(' ')))
        return column.width;
    Setter setter(text, font, column);
    const Lines lines = setter.at(column.width);
    if (lines.count < 2 || lines.count > column.mostLines || !lines.fits) return column.width;
    if (setter.fitsOneLine()) return column.width;
    if (lines.count > 2 && !lines.isLastBare) return column.width;
    const double even = evenBreadth(setter, column.width, lines.count);
    if (lines.count == 2) return std::min(column.width, std::ceil(even + kSlack));
    // The largest width whose last line has several words.
    double bare = column.width;
    double good = even;
    if (setter.at(good).isLastBare) return column.width;
    while (bare - good > kSlack) {
        const double middle = (bare + good) / 2;
        (setter.at(middle).isLastBare ? bare : good) = middle;
    }
    return good;
}

} // namespace vantle
