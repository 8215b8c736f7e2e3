#include "surfaces/wrapped/poster/PosterText.h"

#include "surfaces/kit/Typeface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QTextLayout>

namespace vantle::postertext {

QFont font(const posterlook::Role& role) {
    const Typeface& face = role.display ? Typeface::display() : Typeface::text();
    QFont font(face.family);
    font.setPixelSize(role.size);
    font.setWeight(role.weight);
    font.setLetterSpacing(QFont::AbsoluteSpacing, role.size * (role.tracking + face.tracking));
    font.setHintingPreference(QFont::PreferNoHinting);
    // No coloured edges: nobody knows on what screen the picture will be looked at.
    font.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
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
    painter.setFont(font);
    painter.setPen(QPen(brush, 0));
    painter.drawText(baseline, text);
}

void drawBefore(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush) {
    draw(painter, baseline - QPointF(width(text, font), 0), text, font, brush);
}

void drawAround(QPainter& painter, QPointF baseline, const QString& text, const QFont& font,
                const QBrush& brush) {
    draw(painter, baseline - QPointF(width(text, font) / 2, 0), text, font, brush);
}

} // namespace vantle::postertext
