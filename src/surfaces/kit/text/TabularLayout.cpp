#include "surfaces/kit/text/TabularLayout.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <numeric>

namespace vantle::tabular {
namespace {

/// Digit cells of the type scale's families, in em. The widest digit would be narrower than their
/// own tabular figures, which this Qt cannot select.
struct FamilyCell {
    const char* family;
    int weight;
    double em;
};

constexpr FamilyCell kCells[] = {
    {"Inter", QFont::Normal, 0.648},
    {"Inter", QFont::Medium, 0.659},
    {"Inter", QFont::DemiBold, 0.671},
    {"Inter Display", QFont::DemiBold, 0.622},
};

bool isDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

double widestDigit(const QFont& font) {
    QFont plain(font);
    plain.setLetterSpacing(QFont::AbsoluteSpacing, 0.0);
    const QFontMetricsF metrics(plain);
    double widest = 0.0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

double tracking(const QFont& font) {
    return font.letterSpacingType() == QFont::AbsoluteSpacing ? font.letterSpacing() : 0.0;
}

} // namespace

double cellWidth(const QFont& font) {
    const QFontInfo info(font);
    for (const FamilyCell& cell : kCells)
        if (info.family() == QLatin1String(cell.family) && font.weight() == cell.weight)
            return cell.em * info.pixelSize();
    return widestDigit(font);
}

Line layOut(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine shaped = layout.createLine();
    layout.endLayout();
    if (!shaped.isValid()) return {};

    Line line;
    line.ascent = shaped.ascent();
    line.descent = shaped.descent();
    line.runs = layout.glyphRuns();
    const auto glyphs = std::accumulate(
        line.runs.begin(), line.runs.end(), qsizetype{0},
        [](qsizetype n, const QGlyphRun& run) { return n + run.glyphIndexes().size(); });
    if (glyphs != text.size()) {
        for (QGlyphRun& run : line.runs) {
            QList<QPointF> positions = run.positions();
            for (QPointF& position : positions)
                position.setY(0.0);
            run.setPositions(positions);
        }
        line.width = shaped.naturalTextWidth();
        return line;
    }

    const double cell = cellWidth(font);
    const double space = tracking(font);
    qsizetype at = 0;
    for (QGlyphRun& run : line.runs) {
        const QList<QPointF> advances =
            run.rawFont().advancesForGlyphIndexes(run.glyphIndexes(), QRawFont::UseDesignMetrics);
        QList<QPointF> positions;
        for (const QPointF& advance : advances) {
            const bool digit = isDigit(text[at++]);
            const double room = digit ? cell : advance.x();
            const double before = at == 1 ? 0.0 : (room - advance.x()) / 2;
            const double behind = (room - advance.x()) / 2;
            positions.append({line.width + before, 0.0});
            line.width += before + advance.x() + behind + space;
        }
        run.setPositions(positions);
    }
    return line;
}

} // namespace vantle::tabular
