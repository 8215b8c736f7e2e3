#include "surfaces/wrapped/poster/PosterText.h"

#include "surfaces/kit/text/Typeface.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRawFont>
#include <QTextLayout>
#include <QTransform>

namespace vantle::postertext {

namespace {

constexpr double kOutlineSize = 512; // px

/// Whether the font's glyphs are outlines; emoji fonts and bitmap fonts have none.
bool hasOutlines(const QRawFont& face) {
    const auto hasTable = [&face](const char* table) { return !face.fontTable(table).isEmpty(); };
    const bool hasPictures = hasTable("CBDT") || hasTable("sbix") || hasTable("COLR");
    return !hasPictures && (hasTable("glyf") || hasTable("CFF ") || hasTable("CFF2"));
}

/// The glyphs of a line around its baseline. Outlines are filled directly, so that the desktop's
/// font rendering settings do not affect the poster.
struct Shaped {
    Shaped(const QString& text, const QFont& font) {
        QTextLayout layout(text, font);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        option.setWrapMode(QTextOption::NoWrap);
        layout.setTextOption(option);
        layout.beginLayout();
        const QTextLine line = layout.createLine();
        layout.endLayout();
        if (!line.isValid()) return;
        for (QGlyphRun run : line.glyphRuns()) {
            QList<QPointF> places = run.positions();
            for (QPointF& place : places)
                place.ry() -= line.ascent();
            run.setPositions(places);
            add(run);
        }
    }

    QPainterPath outlines;
    QList<QGlyphRun> pictures;

private:
    void add(const QGlyphRun& run) {
        const QRawFont face = run.rawFont();
        if (!hasOutlines(face)) {
            pictures << run;
            return;
        }
        const auto glyphs = run.glyphIndexes();
        const auto places = run.positions();
        // Small outlines are rounded depending on the size that the face was used at before.
        QRawFont large = face;
        large.setPixelSize(kOutlineSize);
        const double scale = face.pixelSize() / kOutlineSize;
        const auto shrink = QTransform::fromScale(scale, scale);
        for (qsizetype i = 0; i < glyphs.size(); ++i)
            outlines.addPath(shrink.map(large.pathForGlyph(glyphs[i])).translated(places[i]));
        outlines.setFillRule(Qt::WindingFill);
    }
};

} // namespace

QFont font(const look::TypeStep& step) {
    QFont font = fontOf(step);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

double width(const QString& text, const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

QFont fitted(QFont font, const QString& text, double room) {
    const int full = font.pixelSize();
    const double tracking = font.letterSpacing() / full;
    for (int size = full - 1; size >= full / 2 && width(text, font) > room; --size) {
        font.setPixelSize(size);
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * size);
    }
    return font;
}

QString elided(const QString& text, const QFont& font, double room) {
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, room);
}

QStringList broken(const QString& text, const QFont& font, double room, int most) {
    if (text.isEmpty()) return {};
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room);
        if (lines.size() + 1 == most) {
            lines << elided(text.mid(line.textStart()), font, room);
            break;
        }
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

void draw(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
          const QBrush& brush) {
    const Shaped shaped(text, font);
    painter.setPen(Qt::NoPen);
    painter.translate(baseline);
    painter.fillPath(shaped.outlines, brush);
    painter.setPen(QPen(brush, 0)); // colour glyphs use its opacity alone
    for (const QGlyphRun& picture : shaped.pictures)
        painter.drawGlyphRun({}, picture);
    painter.translate(-baseline);
}

void drawBefore(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush) {
    draw(painter, baseline - QPointF(width(text, font), 0), text, font, brush);
}

void drawAround(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush) {
    draw(painter, baseline - QPointF(width(text, font) / 2, 0), text, font, brush);
}

double inkLeft(const QString& text, const QFont& font) {
    return Shaped(text, font).outlines.boundingRect().left();
}

} // namespace vantle::postertext
